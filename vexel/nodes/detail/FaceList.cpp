#include <vexel/nodes/detail/FaceList.h>

#include <algorithm>
#include <cmath>

#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/detail/NormalGenerator.h>
#include <vexel/nodes/detail/PolygonTessellator.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/nodes/detail/VertexBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {

/** Turns one face after the other into triangles of the geometry. */
class FaceCutter {
public:
    FaceCutter(const SoState& state, VertexBuilder& vertices, SoShapeGeometry& geometry, bool keepsFaces)
        : m_vertices(vertices), m_geometry(geometry), m_isConvex(state->faceType == SoShapeHints::CONVEX),
          m_keepsFaces(keepsFaces),
          m_tessellator([this](const SbVec3f& point, const std::uint32_t (&from)[4], const float (&weights)[4]) {
              return m_vertices.mix(point, from, weights);
          })
    {
    }

    void cut(const FaceList& list, const FaceList::Face& face, const SbVec3f* normals)
    {
        m_ring.clear();
        for (int i = 0; i < face.numCorners; ++i) {
            const auto at = static_cast<std::size_t>(face.firstCorner) + static_cast<std::size_t>(i);
            m_ring.push_back(m_vertices.vertex(list.corners[at], face.part, normals ? normals + at : nullptr));
        }
        if (m_ring.size() == 3 || m_isConvex)
            cutAsFan();
        else
            cutAsPolygon();
        if (!m_keepsFaces)
            return;
        m_geometry.triangleFaces.resize(m_geometry.getNumTriangles(), face.part.face);
        for (std::size_t i = 0; i < m_ring.size(); ++i) {
            m_geometry.outline.push_back(m_ring[i]);
            m_geometry.outline.push_back(m_ring[i + 1 == m_ring.size() ? 0 : i + 1]);
        }
    }

private:
    void cutAsFan()
    {
        for (std::size_t i = 2; i < m_ring.size(); ++i)
            m_geometry.triangles.insert(m_geometry.triangles.end(), {m_ring[0], m_ring[i - 1], m_ring[i]});
    }

    void cutAsPolygon()
    {
        std::vector<SbVec3f> points;
        points.reserve(m_ring.size());
        for (const std::uint32_t vertex : m_ring) {
            const SbVec3f& point = m_geometry.points[vertex];
            if (!std::isfinite(point[0]) || !std::isfinite(point[1]) || !std::isfinite(point[2]))
                return;
            points.push_back(point);
        }
        m_tessellator.begin(newellNormal(points));
        m_tessellator.addContour(points, m_ring);
        m_tessellator.end(m_geometry.triangles);
    }

    VertexBuilder& m_vertices;
    SoShapeGeometry& m_geometry;
    bool m_isConvex;
    bool m_keepsFaces;
    PolygonTessellator m_tessellator;
    std::vector<std::uint32_t> m_ring;
};

// Triangles that are numbered as the faces need no note of their face.
bool areAllTriangles(const FaceList& list)
{
    for (std::size_t i = 0; i < list.faces.size(); ++i) {
        if (list.faces[i].numCorners != 3 || list.faces[i].part.face != static_cast<int>(i))
            return false;
    }
    return true;
}

} // namespace

void FaceList::endFace(const ShapePart& part)
{
    const int first = faces.empty() ? 0 : faces.back().firstCorner + faces.back().numCorners;
    const int count = static_cast<int>(corners.size()) - first;
    if (count >= 3)
        faces.push_back({first, count, part});
    else
        corners.resize(static_cast<std::size_t>(first));
}

void FaceList::addTriangle(const StateCoordinates& coordinates, const ShapeCorner& a, const ShapeCorner& b,
                           const ShapeCorner& c, const ShapePart& part)
{
    if (!coordinates.contains(a.coordinate) || !coordinates.contains(b.coordinate) ||
        !coordinates.contains(c.coordinate))
        return;
    corners.insert(corners.end(), {a, b, c});
    endFace(part);
}

void buildFaces(const FaceList& list, const SoState& state, const SoIndexedShape* indices, SoShapeGeometry& geometry)
{
    VertexBuilder vertices(state, geometry, indices, list.corners.size());
    std::vector<SbVec3f> normals;
    if (!vertices.hasNormals())
        normals = generateNormals(list, vertices.coordinates(), state->creaseAngle,
                                  state->vertexOrdering == SoShapeHints::CLOCKWISE);
    FaceCutter cutter(state, vertices, geometry, !areAllTriangles(list));
    for (const FaceList::Face& face : list.faces)
        cutter.cut(list, face, normals.empty() ? nullptr : normals.data());
    vertices.finish();
}
