#pragma once

#include <map>

#include <vexel/render/detail/ProgramKey.h>

namespace vexel {

/** Places of the plain uniforms of the packet shaders; -1 where a program has no use for one. */
struct ProgramUniforms {
    int pointSize;
    int lineWidth;
    int linePattern;
    int linePatternScale;
    int oneColor;
    struct {
        int matrix;
        int planes;
        int blendColor;
    } textures[ProgramKey::MaxTextures];
};

/** A linked program. */
struct Program {
    unsigned id = 0;
    ProgramUniforms uniforms{};
};

/** The programs compiled so far in one context; most scenes need fewer than ten. */
class ProgramCache {
public:
    /** Compiles at the first use. The result stays where it is until clear(). */
    const Program& program(const ProgramKey& key);

    /** Needs the context current. */
    void clear();

private:
    std::map<ProgramKey, Program> m_programs;
};

} // namespace vexel
