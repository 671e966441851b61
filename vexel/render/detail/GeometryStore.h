#pragma once

#include <cstdint>
#include <unordered_map>

namespace vexel {

class RenderGeometry;

/** One geometry on the graphics card. */
class GeometryBuffers {
public:
    explicit GeometryBuffers(const RenderGeometry& geometry);
    void release();

    /** What to draw of the geometry. */
    enum class Part { Primitives, Edges, Vertices };

    bool hasNormals() const { return m_hasNormals; }
    bool hasColors() const { return m_hasColors; }
    bool hasSigns() const { return m_hasSigns; }

    /** Draws `count` instances whose records start at number `first` of the instance buffer. */
    void draw(const RenderGeometry& geometry, Part part, unsigned instanceBuffer, std::uint32_t first,
              std::uint32_t count);

private:
    struct IndexBuffer {
        unsigned buffer = 0;
        unsigned vertexArray = 0;
        unsigned type = 0;
        int count = 0;
        unsigned pointedBuffer = 0;      // instance records that the vertex array reads now
        std::uint32_t pointedRecord = 0; // ... from this one on
    };

    void describeVertices() const;
    void makeIndexBuffer(IndexBuffer& indices, const std::uint32_t* data, std::size_t count) const;
    static void pointAt(IndexBuffer& indices, unsigned instanceBuffer, std::uint32_t first);

    unsigned m_vertexBuffer = 0;
    std::size_t m_vertexCount;
    bool m_hasNormals;
    bool m_hasColors;
    bool m_hasTextureCoordinates;
    bool m_hasSigns;
    unsigned m_primitiveMode;
    IndexBuffer m_primitives;
    IndexBuffer m_edges; // made when edges are drawn first
};

/** The geometries of one context. */
class GeometryStore {
public:
    /** Uploads at the first use. The result stays where it is until it is dropped. */
    GeometryBuffers& buffers(const RenderGeometry& geometry);

    /** True if there was something to drop. */
    bool drop(std::uint64_t geometryId);
    void clear();

private:
    std::unordered_map<std::uint64_t, GeometryBuffers> m_buffers;
};

} // namespace vexel
