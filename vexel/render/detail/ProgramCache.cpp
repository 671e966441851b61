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
    const auto place = [&](const std::string& name) { return glGetUniformLocation(program.id, name.c_str()); };
    ProgramUniforms& uniforms = program.uniforms;
    uniforms.pointSize = place("pointSize");
    uniforms.lineWidth = place("lineWidth");
    uniforms.linePattern = place("linePattern");
    uniforms.linePatternScale = place("linePatternScale");
    uniforms.oneColor = place("oneColor");
    glUseProgram(program.id);
    for (int texture = 0; texture < ProgramKey::MaxTextures; ++texture) {
        const std::string number = std::to_string(texture);
        uniforms.textures[texture] = {place("textureMatrix" + number), place("texturePlanes" + number),
                                      place("blendColor" + number)};
        glUniform1i(place("image" + number), ImageUnit + texture);
    }
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
