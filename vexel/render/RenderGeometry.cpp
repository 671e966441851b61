#include <vexel/render/RenderGeometry.h>

#include <algorithm>
#include <cstring>
#include <numeric>

#include <vexel/render/detail/ResourceTrash.h>

namespace vexel {

namespace {

std::size_t verticesPer(RenderPrimitive primitive)
{
    switch (primitive) {
    case RenderPrimitive::Triangles:
        return 3;
    case RenderPrimitive::Lines:
        return 2;
    case RenderPrimitive::Points:
        break;
    }
    return 1;
}

/** Drops an incomplete last primitive and collapses those that point outside the positions. */
void makeSafe(std::vector<std::uint32_t>& indices, std::size_t perPrimitive, std::size_t positions)
{
    indices.resize(positions ? indices.size() / perPrimitive * perPrimitive : 0);
    for (std::size_t first = 0; first < indices.size(); first += perPrimitive) {
        const auto begin = indices.begin() + first;
        if (std::any_of(begin, begin + perPrimitive, [&](std::uint32_t index) { return index >= positions; }))
            std::fill(begin, begin + perPrimitive, 0);
    }
}

template <typename T>
void keepIfComplete(std::vector<T>& values, std::size_t count)
{
    if (values.size() != count)
        values.clear();
}

/** For each vertex the first one at the same place. */
std::vector<std::uint32_t> firstAtPlace(const std::vector<SbVec3f>& positions)
{
    // As bits, because numbers that are none have no order; both zeros are the same place.
    const auto place = [&](std::uint32_t vertex) {
        std::array<std::uint32_t, 3> bits;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float value = positions[vertex][static_cast<int>(axis)] + 0.0f;
            std::memcpy(&bits[axis], &value, sizeof(value));
        }
        return bits;
    };
    std::vector<std::uint32_t> order(positions.size());
    std::iota(order.begin(), order.end(), 0u);
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        const auto placeA = place(a);
        const auto placeB = place(b);
        return placeA != placeB ? placeA < placeB : a < b;
    });
    std::vector<std::uint32_t> first(positions.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        first[order[i]] = i > 0 && place(order[i]) == place(order[i - 1]) ? first[order[i - 1]] : order[i];
    return first;
}

} // namespace

RenderGeometry::RenderGeometry(RenderGeometryArrays arrays) : m_arrays(std::move(arrays)), m_id(ResourceTrash::newId())
{
    const std::size_t count = m_arrays.positions.size();
    const std::size_t per_primitive = verticesPer(m_arrays.primitive);
    keepIfComplete(m_arrays.normals, count);
    keepIfComplete(m_arrays.colors, count);
    keepIfComplete(m_arrays.textureCoordinates, count);
    keepIfComplete(m_arrays.signs, count);
    if (m_arrays.indices.empty()) {
        m_arrays.indices.resize(count);
        std::iota(m_arrays.indices.begin(), m_arrays.indices.end(), 0u);
    }
    makeSafe(m_arrays.indices, per_primitive, count);
    makeSafe(m_arrays.outline, 2, count);
    m_hasTransparentColors = std::any_of(m_arrays.colors.begin(), m_arrays.colors.end(),
                                         [](std::uint32_t color) { return color >> 24 != 255; });
    // The ray caster reads the positions in place, sixteen bytes at a time: the last one needs readable room behind it.
    m_arrays.positions.reserve(count + 2);
    for (const SbVec3f& position : m_arrays.positions)
        m_bounds.extend(&position[0]);
}

RenderGeometry::~RenderGeometry()
{
    ResourceTrash::discard(m_id);
}

std::size_t RenderGeometry::primitiveCount() const
{
    return m_arrays.indices.size() / verticesPer(m_arrays.primitive);
}

const std::uint32_t* RenderGeometry::primitiveVertices(std::size_t primitive) const
{
    return &m_arrays.indices[primitive * verticesPer(m_arrays.primitive)];
}

std::vector<std::uint32_t> RenderGeometry::edges() const
{
    if (m_arrays.primitive != RenderPrimitive::Triangles)
        return m_arrays.primitive == RenderPrimitive::Lines ? m_arrays.indices : std::vector<std::uint32_t>();
    const std::vector<std::uint32_t> same = firstAtPlace(m_arrays.positions);
    // The vertices of the first edge between two places are kept, as normals and colours belong together.
    struct Edge {
        std::uint64_t places;
        std::uint32_t vertices[2];
    };
    std::vector<Edge> found;
    const auto add = [&](std::uint32_t vertex, std::uint32_t other) {
        const std::uint64_t from = same[vertex];
        const std::uint64_t to = same[other];
        if (from != to)
            found.push_back({std::min(from, to) << 32 | std::max(from, to), {vertex, other}});
    };
    found.reserve(m_arrays.outline.empty() ? m_arrays.indices.size() : m_arrays.outline.size() / 2);
    for (std::size_t i = 0; i < m_arrays.outline.size(); i += 2)
        add(m_arrays.outline[i], m_arrays.outline[i + 1]);
    for (std::size_t i = 0; m_arrays.outline.empty() && i < m_arrays.indices.size(); ++i)
        add(m_arrays.indices[i], m_arrays.indices[i % 3 == 2 ? i - 2 : i + 1]);
    std::stable_sort(found.begin(), found.end(), [](const Edge& x, const Edge& y) { return x.places < y.places; });
    const auto end =
        std::unique(found.begin(), found.end(), [](const Edge& x, const Edge& y) { return x.places == y.places; });
    std::vector<std::uint32_t> result;
    result.reserve(static_cast<std::size_t>(end - found.begin()) * 2);
    for (auto edge = found.begin(); edge != end; ++edge)
        result.insert(result.end(), {edge->vertices[0], edge->vertices[1]});
    return result;
}

} // namespace vexel
