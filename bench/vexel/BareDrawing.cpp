#include <epoxy/gl.h>

#include "BareDrawing.h"

#include <cstdlib>
#include <iostream>

namespace vexel {

namespace {

const char* const SingleVertex = R"(#version 330 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
uniform mat4 matrix = mat4(1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, -1.0, 0.0, 0.0, 0.0, 0.0, 1.0);
uniform vec3 color = vec3(0.8);
out vec3 n;
flat out vec3 base;
void main()
{
    gl_Position = matrix * vec4(position, 1.0);
    n = normal;
    base = color;
}
)";

const char* const InstancedVertex = R"(#version 330 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec4 rowX;
layout(location = 3) in vec4 rowY;
layout(location = 4) in vec4 rowZ;
layout(location = 5) in vec4 color;
uniform mat4 matrix = mat4(1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, -1.0, 0.0, 0.0, 0.0, 0.0, 1.0);
out vec3 n;
flat out vec3 base;
void main()
{
    vec4 local = vec4(position, 1.0);
    gl_Position = matrix * vec4(dot(rowX, local), dot(rowY, local), dot(rowZ, local), 1.0);
    n = vec3(dot(rowX.xyz, normal), dot(rowY.xyz, normal), dot(rowZ.xyz, normal));
    base = color.rgb;
}
)";

const char* const Fragment = R"(#version 330 core
in vec3 n;
flat in vec3 base;
uniform vec3 lamp = vec3(0.267, 0.356, 0.896);
out vec4 result;
void main()
{
    vec3 facing = normalize(gl_FrontFacing ? n : -n);
    result = vec4(base * (0.2 + 0.8 * max(dot(facing, lamp), 0.0)), 1.0);
}
)";

GLuint link(const char* vertex)
{
    const GLuint program = glCreateProgram();
    const std::pair<GLenum, const char*> stages[] = {{GL_VERTEX_SHADER, vertex}, {GL_FRAGMENT_SHADER, Fragment}};
    for (const auto& [stage, text] : stages) {
        const GLuint shader = glCreateShader(stage);
        glShaderSource(shader, 1, &text, nullptr);
        glCompileShader(shader);
        glAttachShader(program, shader);
    }
    glLinkProgram(program);
    GLint linked = GL_FALSE;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (!linked) {
        std::cerr << "The baseline's shader does not compile.\n";
        std::exit(1);
    }
    return program;
}

void attribute(GLuint place, int size, int stride, std::size_t offset, GLuint divisor)
{
    glEnableVertexAttribArray(place);
    glVertexAttribPointer(place, size, GL_FLOAT, GL_FALSE, stride, reinterpret_cast<const void*>(offset));
    glVertexAttribDivisor(place, divisor);
}

} // namespace

BareDrawing::BareDrawing(const RenderGeometryArrays& shape) : m_program(link(SingleVertex))
{
    upload(shape);
}

BareDrawing::BareDrawing(const RenderGeometryArrays& shape, const std::vector<Instance>& instances)
    : m_program(link(InstancedVertex)), m_instanceCount(static_cast<int>(instances.size()))
{
    upload(shape);
    GLuint buffer = 0;
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, instances.size() * sizeof(Instance), instances.data(), GL_STATIC_DRAW);
    for (GLuint i = 0; i < 4; ++i)
        attribute(2 + i, 4, sizeof(Instance), 16 * i, 1);
}

void BareDrawing::upload(const RenderGeometryArrays& shape)
{
    std::vector<SbVec3f> interleaved;
    for (std::size_t i = 0; i < shape.positions.size(); ++i) {
        interleaved.push_back(shape.positions[i]);
        interleaved.push_back(shape.normals[i]);
    }
    glGenVertexArrays(1, &m_vertexArray);
    glBindVertexArray(m_vertexArray);
    GLuint buffers[2];
    glGenBuffers(2, buffers);
    glBindBuffer(GL_ARRAY_BUFFER, buffers[0]);
    glBufferData(GL_ARRAY_BUFFER, interleaved.size() * sizeof(SbVec3f), interleaved.data(), GL_STATIC_DRAW);
    attribute(0, 3, 2 * sizeof(SbVec3f), 0, 0);
    attribute(1, 3, 2 * sizeof(SbVec3f), sizeof(SbVec3f), 0);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffers[1]);
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, shape.indices.size() * sizeof(std::uint32_t), shape.indices.data(),
                 GL_STATIC_DRAW);
    m_indexCount = static_cast<int>(shape.indices.size());
}

void BareDrawing::draw() const
{
    glEnable(GL_DEPTH_TEST);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glUseProgram(m_program);
    glBindVertexArray(m_vertexArray);
    if (m_instanceCount)
        glDrawElementsInstanced(GL_TRIANGLES, m_indexCount, GL_UNSIGNED_INT, nullptr, m_instanceCount);
    else
        glDrawElements(GL_TRIANGLES, m_indexCount, GL_UNSIGNED_INT, nullptr);
}

} // namespace vexel
