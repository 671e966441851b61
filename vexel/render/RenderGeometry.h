#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <vexel/base/SbVec3f.h>
#include <vexel/base/VexelApi.h>
#include <vexel/render/detail/Bounds.h>

namespace vexel {

/** What consecutive indices of a geometry make. */
enum class RenderPrimitive : std::uint8_t { Triangles, Lines, Points };

/** A small picture of a fixed size in pixels that a point is drawn as. */
struct RenderSign {
    static constexpr std::size_t MaxSize = 9;
    static constexpr std::size_t RowsPerWord = 3;

    std::array<std::uint32_t, MaxSize / RowsPerWord> bits{};
    std::uint32_t size = 0; ///< width and height, odd so that there is a pixel in the middle

    /** Sets a row, counted from the top; the lowest bit is the leftmost pixel. */
    void setRow(std::size_t row, std::uint32_t pixels)
    {
        bits[row / RowsPerWord] |= pixels << row % RowsPerWord * MaxSize;
    }
};

/** The arrays from which a RenderGeometry is made. Optional arrays are empty or as long as `positions`. */
struct RenderGeometryArrays {
    RenderPrimitive primitive = RenderPrimitive::Triangles;
    std::vector<SbVec3f> positions;
    std::vector<SbVec3f> normals;      ///< unit length; without them triangles are shaded flat, others unlit
    std::vector<std::uint32_t> colors; ///< red in the lowest byte, then green, blue, alpha; replaces the diffuse colour
    std::vector<SbVec3f> textureCoordinates; ///< the third component counts for volume textures only
    std::vector<RenderSign> signs;           ///< what points are drawn as, instead of squares or circles
    std::vector<std::uint32_t> indices;      ///< three, two or one per primitive; empty: 0, 1, 2, ...
    std::vector<std::uint32_t>
        outline; ///< pairs: the edges of the polygons that were cut into triangles; empty: all triangle edges
};

/**
 * Data of one shape in its own space, shared by every reference to the shape: by draw lists, by pick scenes, and by one
 * buffer per OpenGL context. It never changes; a changed shape is a new object.
 *
 * A primitive with an index beyond the positions becomes a degenerate one, so that primitive numbers stay what they
 * were; left-over indices of an incomplete primitive are dropped.
 */
class VEXEL_API RenderGeometry {
public:
    explicit RenderGeometry(RenderGeometryArrays arrays);
    ~RenderGeometry();
    RenderGeometry(const RenderGeometry&) = delete;
    RenderGeometry& operator=(const RenderGeometry&) = delete;

    const RenderGeometryArrays& arrays() const { return m_arrays; }
    RenderPrimitive primitive() const { return m_arrays.primitive; }
    std::size_t primitiveCount() const;

    /** Box around all positions with finite coordinates; empty when there are none. */
    const Bounds& bounds() const { return m_bounds; }

    /** True when some vertex colour lets the background shine through. */
    bool hasTransparentColors() const { return m_hasTransparentColors; }

    /** Vertices of a primitive: as many numbers as the primitive kind takes. */
    const std::uint32_t* primitiveVertices(std::size_t primitive) const;

    /** Pairs of vertices: every edge of the outline, or else of the triangles; one of those between the same places. */
    std::vector<std::uint32_t> edges() const;

    /** Number that no other geometry of this process ever has. */
    std::uint64_t id() const { return m_id; }

private:
    RenderGeometryArrays m_arrays;
    Bounds m_bounds;
    bool m_hasTransparentColors;
    std::uint64_t m_id;
};

} // namespace vexel
