#include "U3DShape.h"

#include "U3DUniqueValues.h"

#include <plotkit/scene/Illumination.h>
#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/state/SoState.h>

#include <cmath>
#include <optional>

namespace {

constexpr std::uint32_t Unset = 0xFFFFFFFF;
/** Differences of coordinates that are not larger are finite numbers. */
constexpr float Farthest = 1e37f;

bool isSane(const SbVec3f& vector)
{
    const auto isNear = [](float value) { return std::abs(value) <= Farthest; };
    return isNear(vector[0]) && isNear(vector[1]) && isNear(vector[2]);
}

/** None for a triangle of no area. */
std::optional<SbVec3f> normalOf(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c)
{
    const auto side = [](const SbVec3f& from, const SbVec3f& to, int i) { return double(to[i]) - double(from[i]); };
    const auto part = [&](int i, int k) { return side(a, b, i) * side(a, c, k) - side(a, b, k) * side(a, c, i); };
    const double x = part(1, 2);
    const double y = part(2, 0);
    const double z = part(0, 1);
    const double length = std::hypot(x, y, z);
    if (!(length > 0))
        return std::nullopt;
    return SbVec3f(float(x / length), float(y / length), float(z / length));
}

} // namespace

U3DShape::U3DShape(const SoState& state, const SoShape& shape) : m_state(state)
{
    if (state->drawStyle != SoDrawStyle::INVISIBLE)
        shape.buildGeometry(state, m_geometry);
    if (!(shape.getDependencies() & SoShape::ON_SHAPE_HINTS) || state->vertexOrdering == SoShapeHints::UNKNOWN_ORDERING)
        return;
    m_isClockwise = state->vertexOrdering == SoShapeHints::CLOCKWISE;
    // Fronts are backs in a mirror.
    m_showsBacks = state->shapeType != SoShapeHints::SOLID || state->model.det3() < 0;
}

bool U3DShape::isVisible(std::uint32_t vertex) const
{
    return isSane(m_geometry.points[vertex]);
}

SbVec4f U3DShape::colorOf(std::uint32_t vertex) const
{
    const int index = m_geometry.materialIndices.empty() ? 0 : int(m_geometry.materialIndices[vertex]);
    const SurfaceMaterial material = SurfaceMaterial::of(m_state, index);
    return {u3dInRange(material.diffuse[0]), u3dInRange(material.diffuse[1]), u3dInRange(material.diffuse[2]),
            u3dInRange(material.alpha)};
}

std::string U3DShape::materialName() const
{
    const SoNode* source = m_state->packedColor.source;
    if (!source)
        source = m_state->diffuseColor.source;
    return source && !source->getName().isEmpty() ? source->getName().getString() : "Material";
}

/** Gathers the vertices that triangles use. */
class U3DShape::MeshBuilder {
public:
    explicit MeshBuilder(const U3DShape& shape)
        : m_shape(shape), m_geometry(shape.m_geometry), m_corners(m_geometry.points.size(), {Unset, Unset, Unset})
    {
    }

    void addTriangle(const std::uint32_t* vertices)
    {
        if (!m_shape.isVisible(vertices[0]) || !m_shape.isVisible(vertices[1]) || !m_shape.isVisible(vertices[2]))
            return;
        const auto normal =
            normalOf(m_geometry.points[vertices[0]], m_geometry.points[vertices[1]], m_geometry.points[vertices[2]]);
        if (!normal)
            return;
        std::array<U3DMesh::Corner, 3> face;
        for (std::size_t i = 0; i < 3; ++i)
            face[i] = cornerOf(vertices[i], *normal);
        if (m_shape.m_isClockwise)
            std::swap(face[1], face[2]);
        m_mesh.faces.push_back(face);
    }

    U3DMesh take()
    {
        m_mesh.positions = m_positions.take();
        m_mesh.normals = m_normals.take();
        m_mesh.colors = m_colors.take();
        return std::move(m_mesh);
    }

private:
    U3DMesh::Corner cornerOf(std::uint32_t vertex, const SbVec3f& faceNormal)
    {
        U3DMesh::Corner& corner = m_corners[vertex];
        if (corner.position == Unset) {
            corner.position = m_positions.add(m_geometry.points[vertex]);
            corner.color = m_colors.add(m_shape.colorOf(vertex));
            if (!m_geometry.normals.empty()) {
                SbVec3f normal = m_geometry.normals[vertex];
                if (isSane(normal) && normal.normalize() > 0)
                    corner.normal = m_normals.add(normal);
            }
        }
        U3DMesh::Corner result = corner;
        if (result.normal == Unset)
            result.normal = m_normals.add(m_shape.m_isClockwise ? faceNormal * -1.0f : faceNormal);
        return result;
    }

    const U3DShape& m_shape;
    const SoShapeGeometry& m_geometry;
    std::vector<U3DMesh::Corner> m_corners; ///< of each vertex
    U3DUniqueValues<SbVec3f, 3> m_positions;
    U3DUniqueValues<SbVec3f, 3> m_normals;
    U3DUniqueValues<SbVec4f, 4> m_colors;
    U3DMesh m_mesh;
};

U3DMesh U3DShape::mesh(U3DProgress& progress) const
{
    if (m_state->drawStyle != SoDrawStyle::FILLED)
        return {};
    MeshBuilder builder(*this);
    const std::size_t numTriangles = m_geometry.getNumTriangles();
    for (std::size_t i = 0; i < numTriangles && progress.goesOn(i, numTriangles, 0, 0.5); ++i)
        builder.addTriangle(&m_geometry.triangles[3 * i]);
    return builder.take();
}

U3DShading U3DShape::meshShading(const U3DMesh& mesh) const
{
    const bool hasVertexColors = mesh.colors.size() > 1;
    const SbVec4f color = hasVertexColors ? SbVec4f(1, 1, 1, 1) : mesh.colors.at(0);
    U3DShading shading = plainShading(color);
    shading.hasVertexColors = hasVertexColors;
    shading.isLit = m_state->lightModel != SoLightModel::BASE_COLOR;
    if (shading.isLit) {
        const SurfaceMaterial material = SurfaceMaterial::of(m_state, 0);
        shading.ambient = material.ambient;
        shading.specular = material.specular;
        shading.emissive = material.emissive;
        shading.shininess = material.shininess;
    }
    return shading;
}

/** That of something that light does not change. */
U3DShading U3DShape::plainShading(const SbVec4f& color) const
{
    U3DShading shading;
    shading.name = materialName();
    shading.diffuse = SbVec3f(color[0], color[1], color[2]);
    shading.emissive = shading.diffuse;
    shading.opacity = color[3];
    shading.isLit = false;
    return shading;
}

/** Gathers the ends of lines, and their colours: those halfway between their ends. */
class U3DShape::LineBuilder {
public:
    LineBuilder(const U3DShape& shape, std::vector<U3DShading>& shadings) : m_shape(shape), m_shadings(shadings) {}

    void addLine(std::uint32_t a, std::uint32_t b)
    {
        if (!m_shape.isVisible(a) || !m_shape.isVisible(b))
            return;
        const std::uint32_t from = m_positions.add(m_shape.m_geometry.points[a]);
        const std::uint32_t to = m_positions.add(m_shape.m_geometry.points[b]);
        if (from == to)
            return;
        const SbVec4f color = (m_shape.colorOf(a) + m_shape.colorOf(b)) * 0.5f;
        const std::uint32_t shading = m_colors.add(color);
        if (shading == m_shadings.size())
            m_shadings.push_back(m_shape.plainShading(color));
        m_lineSet.lines.push_back({from, to, shading});
    }

    U3DLineSet take(SbVec3f& origin)
    {
        m_lineSet.positions = m_positions.take();
        // Near to their first one positions are coded without loss, however far away they all are.
        origin = m_lineSet.positions.empty() ? SbVec3f(0, 0, 0) : m_lineSet.positions.front();
        for (SbVec3f& position : m_lineSet.positions)
            position -= origin;
        m_lineSet.numShadings = std::uint32_t(m_shadings.size());
        return std::move(m_lineSet);
    }

private:
    const U3DShape& m_shape;
    std::vector<U3DShading>& m_shadings;
    U3DUniqueValues<SbVec3f, 3> m_positions;
    U3DUniqueValues<SbVec4f, 4> m_colors;
    U3DLineSet m_lineSet;
};

U3DLineSet U3DShape::lineSet(std::vector<U3DShading>& shadings, SbVec3f& origin, U3DProgress& progress) const
{
    LineBuilder builder(*this, shadings);
    if (m_state->linePattern == 0 || m_state->drawStyle == SoDrawStyle::POINTS)
        return {};
    if (m_state->drawStyle == SoDrawStyle::LINES) {
        for (std::size_t i = 0; i + 1 < m_geometry.outline.size(); i += 2)
            builder.addLine(m_geometry.outline[i], m_geometry.outline[i + 1]);
        for (std::size_t i = 0; m_geometry.outline.empty() && i + 2 < m_geometry.triangles.size(); i += 3) {
            for (std::size_t k = 0; k < 3; ++k)
                builder.addLine(m_geometry.triangles[i + k], m_geometry.triangles[i + (k + 1) % 3]);
        }
    }
    const std::size_t numLines = m_geometry.getNumLines();
    for (std::size_t i = 0; i < numLines && progress.goesOn(i, numLines, 0, 0.5); ++i)
        builder.addLine(m_geometry.lines[2 * i], m_geometry.lines[2 * i + 1]);
    return builder.take(origin);
}
