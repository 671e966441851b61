#pragma once

#include <vexel/render/RenderGeometry.h>

namespace vexel {

/**
 * What a program without any scene graph does: one vertex and one index buffer, a shader with one lamp, one draw call;
 * optionally one buffer with a place and a colour per instance.
 */
class BareDrawing {
public:
    struct Instance {
        float rows[12];
        float color[4];
    };

    explicit BareDrawing(const RenderGeometryArrays& shape);
    BareDrawing(const RenderGeometryArrays& shape, const std::vector<Instance>& instances);

    /** Clears the bound framebuffer and draws. */
    void draw() const;

private:
    void upload(const RenderGeometryArrays& shape);

    unsigned m_program = 0;
    unsigned m_vertexArray = 0;
    int m_indexCount = 0;
    int m_instanceCount = 0;
};

} // namespace vexel
