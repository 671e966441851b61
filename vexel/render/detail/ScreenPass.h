#pragma once

namespace vexel {

/** A program that is run for every pixel of the viewport; its shader sees `vec2 place`, (0,0) at the lower left corner.
 */
class ScreenPass {
public:
    /** `fragment`: declarations of uniforms, and a main() that sets `vec4 result`; `extensions`: lines that must stand
       in front of everything. */
    explicit ScreenPass(const char* fragment, const char* extensions = "")
        : m_fragment(fragment), m_extensions(extensions)
    {
    }

    /** Makes the program current, so that uniforms can be set. Compiles at the first use. */
    void use();
    int uniform(const char* name) const;
    /** Covers the viewport, with depth test and face culling off and blending as it is set. */
    void draw() const;
    void release();

private:
    const char* m_fragment;
    const char* m_extensions;
    unsigned m_program = 0;
    unsigned m_vertexArray = 0;
};

} // namespace vexel
