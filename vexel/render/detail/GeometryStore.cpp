#include <vexel/render/detail/GeometryStore.h>

#include <vector>

#include <epoxy/gl.h>

#include <vexel/render/RenderGeometry.h>
#include <vexel/render/detail/InstanceRecord.h>
#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

const void* offset(std::size_t bytes)
{
    return reinterpret_cast<const void*>(bytes);
}

bool hasBaseInstance()
{
    static const bool has = epoxy_gl_version() >= 42 || epoxy_has_gl_extension("GL_ARB_base_instance");
    return has;
}

GLenum modeOf(RenderPrimitive primitive)
{
    const GLenum modes[] = {GL_TRIANGLES, GL_LINES, GL_POINTS};
    return modes[static_cast<int>(primitive)];
}

template <typename T>
void append(std::size_t& position, const std::vector<T>& values)
{
    const std::size_t bytes = values.size() * sizeof(T);
    if (bytes)
        glBufferSubData(GL_ARRAY_BUFFER, position, bytes, values.data());
    position += bytes;
}

} // namespace

GeometryBuffers::GeometryBuffers(const RenderGeometry& geometry)
    : m_vertexCount(geometry.arrays().positions.size()), m_hasNormals(!geometry.arrays().normals.empty()),
      m_hasColors(!geometry.arrays().colors.empty()),
      m_hasTextureCoordinates(!geometry.arrays().textureCoordinates.empty()),
      m_hasSigns(!geometry.arrays().signs.empty()), m_primitiveMode(modeOf(geometry.primitive()))
{
    const RenderGeometryArrays& arrays = geometry.arrays();
    const std::size_t bytes = m_vertexCount * (sizeof(SbVec3f) * (1 + m_hasNormals + m_hasTextureCoordinates) +
                                               sizeof(std::uint32_t) * m_hasColors + sizeof(RenderSign) * m_hasSigns);
    glGenBuffers(1, &m_vertexBuffer);
    glBindBuffer(GL_ARRAY_BUFFER, m_vertexBuffer);
    glBufferData(GL_ARRAY_BUFFER, bytes, nullptr, GL_STATIC_DRAW);
    std::size_t position = 0;
    append(position, arrays.positions);
    append(position, arrays.normals);
    append(position, arrays.textureCoordinates);
    append(position, arrays.colors);
    append(position, arrays.signs);
    makeIndexBuffer(m_primitives, arrays.indices.data(), arrays.indices.size());
}

void GeometryBuffers::describeVertices() const
{
    glBindBuffer(GL_ARRAY_BUFFER, m_vertexBuffer);
    std::size_t position = 0;
    const auto vectors = [&](GLuint attribute) {
        glEnableVertexAttribArray(attribute);
        glVertexAttribPointer(attribute, 3, GL_FLOAT, GL_FALSE, sizeof(SbVec3f), offset(position));
        position += m_vertexCount * sizeof(SbVec3f);
    };
    vectors(PositionAttribute);
    if (m_hasNormals)
        vectors(NormalAttribute);
    if (m_hasTextureCoordinates)
        vectors(TextureAttribute);
    if (m_hasColors) {
        glEnableVertexAttribArray(ColorAttribute);
        glVertexAttribPointer(ColorAttribute, 4, GL_UNSIGNED_BYTE, GL_TRUE, 4, offset(position));
        position += m_vertexCount * sizeof(std::uint32_t);
    }
    if (m_hasSigns) {
        glEnableVertexAttribArray(SignAttribute);
        glVertexAttribIPointer(SignAttribute, 4, GL_UNSIGNED_INT, sizeof(RenderSign), offset(position));
    }
    for (GLuint attribute = RowsAttribute; attribute <= MaterialAttribute; ++attribute) {
        glEnableVertexAttribArray(attribute);
        glVertexAttribDivisor(attribute, 1);
    }
}

void GeometryBuffers::makeIndexBuffer(IndexBuffer& indices, const std::uint32_t* data, std::size_t count) const
{
    glGenVertexArrays(1, &indices.vertexArray);
    glBindVertexArray(indices.vertexArray);
    describeVertices();
    glGenBuffers(1, &indices.buffer);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, indices.buffer);
    if (m_vertexCount <= 0x10000) {
        const std::vector<std::uint16_t> narrow(data, data + count);
        glBufferData(GL_ELEMENT_ARRAY_BUFFER, count * sizeof(std::uint16_t), narrow.data(), GL_STATIC_DRAW);
        indices.type = GL_UNSIGNED_SHORT;
    } else {
        glBufferData(GL_ELEMENT_ARRAY_BUFFER, count * sizeof(std::uint32_t), data, GL_STATIC_DRAW);
        indices.type = GL_UNSIGNED_INT;
    }
    indices.count = static_cast<int>(count);
}

void GeometryBuffers::pointAt(IndexBuffer& indices, unsigned instanceBuffer, std::uint32_t first)
{
    if (indices.pointedBuffer == instanceBuffer && indices.pointedRecord == first)
        return;
    glBindBuffer(GL_ARRAY_BUFFER, instanceBuffer);
    const std::size_t start = first * sizeof(InstanceRecord);
    for (GLuint row = 0; row < 3; ++row)
        glVertexAttribPointer(RowsAttribute + row, 4, GL_FLOAT, GL_FALSE, sizeof(InstanceRecord),
                              offset(start + 16 * row));
    glVertexAttribIPointer(MaterialAttribute, 4, GL_UNSIGNED_INT, sizeof(InstanceRecord), offset(start + 48));
    indices.pointedBuffer = instanceBuffer;
    indices.pointedRecord = first;
}

void GeometryBuffers::draw(const RenderGeometry& geometry, Part part, unsigned instanceBuffer, std::uint32_t first,
                           std::uint32_t count)
{
    if (part == Part::Edges && !m_edges.vertexArray) {
        const std::vector<std::uint32_t> edges = geometry.edges();
        makeIndexBuffer(m_edges, edges.data(), edges.size());
    }
    IndexBuffer& indices = part == Part::Edges ? m_edges : m_primitives;
    glBindVertexArray(indices.vertexArray);
    pointAt(indices, instanceBuffer, hasBaseInstance() ? 0 : first);
    if (part == Part::Vertices) {
        const auto vertices = static_cast<GLsizei>(m_vertexCount);
        if (hasBaseInstance())
            glDrawArraysInstancedBaseInstance(GL_POINTS, 0, vertices, count, first);
        else
            glDrawArraysInstanced(GL_POINTS, 0, vertices, count);
        return;
    }
    const GLenum mode = part == Part::Edges ? GL_LINES : m_primitiveMode;
    if (hasBaseInstance())
        glDrawElementsInstancedBaseInstance(mode, indices.count, indices.type, nullptr, count, first);
    else
        glDrawElementsInstanced(mode, indices.count, indices.type, nullptr, count);
}

void GeometryBuffers::release()
{
    for (IndexBuffer* indices : {&m_primitives, &m_edges}) {
        glDeleteVertexArrays(1, &indices->vertexArray);
        glDeleteBuffers(1, &indices->buffer);
    }
    glDeleteBuffers(1, &m_vertexBuffer);
}

GeometryBuffers& GeometryStore::buffers(const RenderGeometry& geometry)
{
    const auto found = m_buffers.find(geometry.id());
    return found != m_buffers.end() ? found->second : m_buffers.emplace(geometry.id(), geometry).first->second;
}

bool GeometryStore::drop(std::uint64_t geometryId)
{
    const auto found = m_buffers.find(geometryId);
    if (found == m_buffers.end())
        return false;
    found->second.release();
    m_buffers.erase(found);
    return true;
}

void GeometryStore::clear()
{
    for (auto& [id, buffers] : m_buffers)
        buffers.release();
    m_buffers.clear();
}

} // namespace vexel
