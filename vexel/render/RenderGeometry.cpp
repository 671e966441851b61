#include <vexel/render/RenderGeometry.h>

#include <algorithm>
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
    if (!m_arrays.outline.empty())
        return m_arrays.outline;
    std::vector<std::uint64_t> keys;
    keys.reserve(m_arrays.indices.size());
    for (std::size_t i = 0; i < m_arrays.indices.size(); ++i) {
        const std::uint64_t from = m_arrays.indices[i];
        const std::uint64_t to = m_arrays.indices[i % 3 == 2 ? i - 2 : i + 1];
        if (from != to)
            keys.push_back(std::min(from, to) << 32 | std::max(from, to));
    }
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    std::vector<std::uint32_t> result;
    result.reserve(keys.size() * 2);
    for (const std::uint64_t key : keys) {
        result.push_back(static_cast<std::uint32_t>(key >> 32));
        result.push_back(static_cast<std::uint32_t>(key));
    }
    return result;
}

} // namespace vexel
