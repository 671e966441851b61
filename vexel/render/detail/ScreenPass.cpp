#include <vexel/render/detail/ScreenPass.h>

#include <epoxy/gl.h>

#include <vexel/render/detail/ShaderCompiler.h>

namespace vexel {

namespace {

const char* const Vertex = R"(#version 330 core
out vec2 place;
void main()
{
    // One triangle that is larger than the screen.
    place = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 2.0;
    gl_Position = vec4(place * 2.0 - 1.0, 0.0, 1.0);
}
)";

const char* const FragmentHead = R"(
in vec2 place;
out vec4 result;
)";

} // namespace

void ScreenPass::use()
{
    if (!m_program) {
        m_program = compileProgram(Vertex, std::string(),
                                   std::string("#version 330 core\n") + m_extensions + FragmentHead + m_fragment);
        glGenVertexArrays(1, &m_vertexArray);
    }
    glUseProgram(m_program);
}

int ScreenPass::uniform(const char* name) const
{
    return glGetUniformLocation(m_program, name);
}

void ScreenPass::draw() const
{
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glDepthMask(GL_FALSE);
    glBindVertexArray(m_vertexArray);
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glDepthMask(GL_TRUE);
}

void ScreenPass::release()
{
    glDeleteProgram(m_program);
    glDeleteVertexArrays(1, &m_vertexArray);
    m_program = 0;
    m_vertexArray = 0;
}

} // namespace vexel
