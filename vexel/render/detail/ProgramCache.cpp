#include <vexel/render/detail/ProgramCache.h>

#include <epoxy/gl.h>

#include <vexel/render/detail/ShaderCompiler.h>
#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

void bindBlock(GLuint program, const char* name, UniformBinding binding)
{
    const GLuint index = glGetUniformBlockIndex(program, name);
    if (index != GL_INVALID_INDEX)
        glUniformBlockBinding(program, index, binding);
}

Program compile(const ProgramKey& key)
{
    const ShaderSource source(key);
    Program program;
    program.id = compileProgram(source.vertex, source.geometry, source.fragment);
    if (!program.id)
        return program;
    bindBlock(program.id, "Frame", FrameBinding);
    bindBlock(program.id, "Surroundings", SurroundingsBinding);
    const auto place = [&](const char* name) { return glGetUniformLocation(program.id, name); };
    program.uniforms = {place("pointSize"),     place("lineWidth"),     place("linePattern"), place("linePatternScale"),
                        place("textureMatrix"), place("texturePlanes"), place("blendColor"),  place("oneColor")};
    glUseProgram(program.id);
    glUniform1i(place("image"), ImageUnit);
    glUniform1i(place("layerDepth"), LayerDepthUnit);
    glUniform1i(place("opaqueDepth"), OpaqueDepthUnit);
    return program;
}

} // namespace

const Program& ProgramCache::program(const ProgramKey& key)
{
    const auto found = m_programs.find(key);
    return found != m_programs.end() ? found->second : m_programs.emplace(key, compile(key)).first->second;
}

void ProgramCache::clear()
{
    for (const auto& [key, program] : m_programs)
        glDeleteProgram(program.id);
    m_programs.clear();
}

} // namespace vexel
