#include <vexel/render/detail/ShaderCompiler.h>

#include <epoxy/gl.h>

#include <QtCore/QtGlobal>

namespace vexel {

namespace {

bool attach(GLuint program, GLenum stage, const std::string& text)
{
    const GLuint shader = glCreateShader(stage);
    const char* const start = text.c_str();
    glShaderSource(shader, 1, &start, nullptr);
    glCompileShader(shader);
    GLint compiled = GL_FALSE;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (compiled) {
        glAttachShader(program, shader);
    } else {
        char log[2048] = "";
        glGetShaderInfoLog(shader, sizeof log, nullptr, log);
        qWarning("The graphics driver refuses a shader: %s", log);
    }
    glDeleteShader(shader);
    return compiled;
}

} // namespace

unsigned compileProgram(const std::string& vertex, const std::string& geometry, const std::string& fragment)
{
    const GLuint program = glCreateProgram();
    GLint linked = attach(program, GL_VERTEX_SHADER, vertex) && attach(program, GL_FRAGMENT_SHADER, fragment) &&
                   (geometry.empty() || attach(program, GL_GEOMETRY_SHADER, geometry));
    if (linked) {
        glLinkProgram(program);
        glGetProgramiv(program, GL_LINK_STATUS, &linked);
        if (!linked) {
            char log[2048] = "";
            glGetProgramInfoLog(program, sizeof log, nullptr, log);
            qWarning("The graphics driver cannot link a shader program: %s", log);
        }
    }
    if (linked)
        return program;
    glDeleteProgram(program);
    return 0;
}

} // namespace vexel
