#include <vexel/nodes/detail/VertexBuilder.h>

#include <algorithm>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoTextureCoordinateBinding.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {

bool usesTexture(const SoState& state)
{
    for (const SoTextureState& unit : state->textures) {
        if (unit.texture)
            return true;
    }
    return false;
}

int textureBindingOf(const SoState& state)
{
    return state->textureCoordinateBinding == SoTextureCoordinateBinding::PER_VERTEX
               ? SoMaterialBinding::PER_VERTEX
               : SoMaterialBinding::PER_VERTEX_INDEXED;
}

} // namespace

VertexBuilder::VertexBuilder(const SoState& state, SoShapeGeometry& geometry, const SoIndexedShape* indices,
                             std::size_t numUses)
    : m_state(state), m_geometry(geometry), m_coordinates(state),
      m_materialRule(state->materialBinding, indices ? &indices->materialIndex : nullptr),
      m_normalRule(state->normalBinding, indices ? &indices->normalIndex : nullptr),
      m_textureRule(textureBindingOf(state), indices ? &indices->textureCoordIndex : nullptr),
      m_hasNormals(!state->normals.isEmpty()),
      m_hasTexture(!state->textureCoordinates2.isEmpty() || !state->textureCoordinates3.isEmpty()),
      m_hasMaterials(!m_materialRule.isOverall()), m_newest(static_cast<std::size_t>(m_coordinates.getNum()), numUses)
{
}

SbVec3f VertexBuilder::textureCoordinate(const ShapeCorner& corner, const ShapePart& part) const
{
    const int index = m_textureRule.indexOf(corner, part);
    if (!m_state->textureCoordinates3.isEmpty())
        return m_state->textureCoordinates3.at(index);
    const SbVec2f& flat = m_state->textureCoordinates2.at(index);
    return SbVec3f(flat[0], flat[1], 0);
}

std::uint32_t VertexBuilder::vertex(const ShapeCorner& corner, const ShapePart& part, const SbVec3f* generatedNormal)
{
    SbVec3f normal;
    if (generatedNormal) {
        normal = *generatedNormal;
    } else if (m_hasNormals) {
        normal = m_state->normals.at(m_normalRule.indexOf(corner, part));
        normal.normalize();
    }
    const SbVec3f texture = m_hasTexture ? textureCoordinate(corner, part) : SbVec3f();
    const auto material =
        m_hasMaterials ? static_cast<std::uint32_t>(m_materialRule.indexOf(corner, part)) : std::uint32_t(0);

    // A coordinate with very many different vertices is not searched to the end; it gets one vertex more.
    constexpr int LongestSearch = 16;
    std::uint32_t& newest = m_newest[corner.coordinate];
    std::uint32_t known = newest;
    for (int step = 0; known != SlotMap::None && step < LongestSearch; ++step) {
        if (isSame(known, normal, texture, material))
            return known;
        known = m_previous[known];
    }
    const std::uint32_t made = append(m_coordinates[corner.coordinate], normal, texture, material, corner.coordinate);
    m_previous.push_back(newest);
    newest = made;
    return made;
}

bool VertexBuilder::isSame(std::uint32_t vertex, const SbVec3f& normal, const SbVec3f& texture,
                           std::uint32_t material) const
{
    return (m_geometry.normals.empty() || m_geometry.normals[vertex] == normal) &&
           (!m_hasTexture || m_geometry.textureCoordinates[vertex] == texture) &&
           (!m_hasMaterials || m_geometry.materialIndices[vertex] == material);
}

std::uint32_t VertexBuilder::append(const SbVec3f& point, const SbVec3f& normal, const SbVec3f& texture,
                                    std::uint32_t material, int coordinate)
{
    const auto number = static_cast<std::uint32_t>(m_geometry.points.size());
    m_geometry.points.push_back(point);
    m_geometry.coordinateIndices.push_back(coordinate);
    if (normal != SbVec3f() || !m_geometry.normals.empty() || m_hasNormals) {
        m_geometry.normals.resize(number);
        m_geometry.normals.push_back(normal);
    }
    if (m_hasTexture)
        m_geometry.textureCoordinates.push_back(texture);
    if (m_hasMaterials)
        m_geometry.materialIndices.push_back(material);
    return number;
}

std::uint32_t VertexBuilder::mix(const SbVec3f& point, const std::uint32_t (&from)[4], const float (&weights)[4])
{
    SbVec3f normal;
    SbVec3f texture;
    std::size_t heaviest = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        if (weights[i] > weights[heaviest])
            heaviest = i;
        if (!m_geometry.normals.empty())
            normal += m_geometry.normals[from[i]] * weights[i];
        if (m_hasTexture)
            texture += m_geometry.textureCoordinates[from[i]] * weights[i];
    }
    normal.normalize();
    const std::uint32_t nearest = from[heaviest];
    const std::uint32_t made = append(point, normal, texture, m_hasMaterials ? m_geometry.materialIndices[nearest] : 0,
                                      m_geometry.coordinateIndices[nearest]);
    m_previous.push_back(SlotMap::None);
    return made;
}

void VertexBuilder::finish()
{
    m_geometry.normals.resize(m_geometry.normals.empty() ? 0 : m_geometry.points.size());
    if (m_hasTexture || m_geometry.isEmpty() || !usesTexture(m_state))
        return;
    const SbBox3f box = m_geometry.getBoundingBox();
    const SbVec3f size = box.getSize();
    int order[3] = {0, 1, 2};
    // The texture lies along the two longest sides of the box, its width along the longest.
    std::stable_sort(order, order + 3, [&](int a, int b) { return size[a] > size[b]; });
    const float scale = size[order[0]] > 0 ? 1 / size[order[0]] : 1;
    m_geometry.textureCoordinates.reserve(m_geometry.points.size());
    for (const SbVec3f& point : m_geometry.points) {
        const SbVec3f offset = (point - box.getMin()) * scale;
        m_geometry.textureCoordinates.push_back(SbVec3f(offset[order[0]], offset[order[1]], 0));
    }
}
