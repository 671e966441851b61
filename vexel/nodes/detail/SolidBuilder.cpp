#include <vexel/nodes/detail/SolidBuilder.h>

#include <algorithm>
#include <cmath>

#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/detail/Bindings.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {
constexpr float TwoPi = 6.28318531f;
}

SolidBuilder::SolidBuilder(const SoState& state, SoShapeGeometry& geometry)
    : m_geometry(geometry), m_hasPartMaterials(state->materialBinding == SoMaterialBinding::PER_PART ||
                                               state->materialBinding == SoMaterialBinding::PER_PART_INDEXED)
{
}

int SolidBuilder::facesAround(const SoState& state)
{
    const float complexity = std::clamp(state->complexity, 0.0f, 1.0f);
    return 4 * static_cast<int>(std::lround(2 + 8 * complexity));
}

void SolidBuilder::addTriangle(int part, std::uint32_t a, std::uint32_t b, std::uint32_t c)
{
    // At a pole the corners of a face fall together.
    const SbVec3f& p = m_geometry.points[a];
    const SbVec3f& q = m_geometry.points[b];
    const SbVec3f& r = m_geometry.points[c];
    if (p == q || q == r || r == p)
        return;
    m_geometry.triangles.insert(m_geometry.triangles.end(), {a, b, c});
    m_geometry.triangleParts.push_back(part);
}

void SolidBuilder::addGrid(int part, int columns, int rows, const std::function<Corner(int column, int row)>& at)
{
    const auto first = static_cast<std::uint32_t>(m_geometry.points.size());
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const Corner corner = at(column, row);
            m_geometry.points.push_back(corner.point);
            m_geometry.normals.push_back(corner.normal);
            m_geometry.textureCoordinates.push_back(corner.texture);
            if (m_hasPartMaterials)
                m_geometry.materialIndices.push_back(static_cast<std::uint32_t>(part));
        }
    }
    const auto width = static_cast<std::uint32_t>(columns) + 1;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const std::uint32_t low =
                first + static_cast<std::uint32_t>(row) * width + static_cast<std::uint32_t>(column);
            addTriangle(part, low, low + 1, low + 1 + width);
            addTriangle(part, low, low + 1 + width, low + width);
        }
    }
}

void SolidBuilder::addDisc(int part, int faces, float radius, float height, bool facesUp)
{
    const SbVec3f normal(0, facesUp ? 1.0f : -1.0f, 0);
    addGrid(part, faces, 1, [&](int column, int row) {
        const float angle = TwoPi * static_cast<float>(column % faces) / static_cast<float>(faces);
        const float distance = (row == 1) == facesUp ? 0 : 1;
        const SbVec3f rim(std::sin(angle) * distance, 0, std::cos(angle) * distance);
        return Corner{SbVec3f(rim[0] * radius, height, rim[2] * radius), normal,
                      SbVec3f(0.5f + rim[0] / 2, 0.5f + (facesUp ? -rim[2] : rim[2]) / 2, 0)};
    });
}
