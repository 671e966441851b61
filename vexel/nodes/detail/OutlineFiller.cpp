#include <vexel/nodes/detail/OutlineFiller.h>

#include <QPolygonF>
#include <QTransform>
#include <algorithm>

#include <vexel/state/SoShapeGeometry.h>

namespace {

using Ring = std::vector<SbVec3f>;

// The rings of an outline with its curves cut into lines, fine enough for letters as high as a window.
std::vector<Ring> ringsOf(const QPainterPath& outline)
{
    constexpr qreal Fineness = 128;
    std::vector<Ring> rings;
    const QList<QPolygonF> polygons = outline.toSubpathPolygons(QTransform::fromScale(Fineness, Fineness));
    for (const QPolygonF& polygon : polygons) {
        Ring ring;
        for (const QPointF& point : polygon) {
            const SbVec3f next(static_cast<float>(point.x() / Fineness), static_cast<float>(point.y() / Fineness), 0);
            if (ring.empty() || ring.back() != next)
                ring.push_back(next);
        }
        if (ring.size() > 1 && ring.front() == ring.back())
            ring.pop_back();
        if (ring.size() >= 3)
            rings.push_back(std::move(ring));
    }
    return rings;
}

// The outline with its curves cut into lines, so that a point beside a line is never between line and curve.
QPainterPath flattened(const std::vector<Ring>& rings)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const Ring& ring : rings) {
        QPolygonF polygon;
        for (const SbVec3f& point : ring)
            polygon << QPointF(point[0], point[1]);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

// Kinds of fonts differ in the way their outlines run, so the outline itself is asked for what it fills.
bool isFilledOnTheLeft(const QPainterPath& outline, const Ring& ring)
{
    constexpr float Aside = 1e-4f;
    SbVec3f along;
    SbVec3f middle;
    for (std::size_t i = 1; i < ring.size(); ++i) {
        if ((ring[i] - ring[i - 1]).sqrLength() > along.sqrLength()) {
            along = ring[i] - ring[i - 1];
            middle = (ring[i] + ring[i - 1]) / 2;
        }
    }
    along.normalize();
    return outline.contains(QPointF(middle[0] - along[1] * Aside, middle[1] + along[0] * Aside));
}

} // namespace

OutlineFiller::OutlineFiller(SoShapeGeometry& geometry, Place place)
    : m_geometry(geometry), m_place(std::move(place)),
      m_tessellator([this](const SbVec3f& point, const std::uint32_t (&)[4], const float (&)[4]) {
          return vertex(point, m_normal);
      })
{
}

std::uint32_t OutlineFiller::vertex(const SbVec3f& point, const SbVec3f& normal)
{
    m_geometry.points.push_back(point);
    m_geometry.normals.push_back(normal);
    return static_cast<std::uint32_t>(m_geometry.points.size() - 1);
}

void OutlineFiller::addArea(const QPainterPath& outline, float depth, const SbVec3f& normal, int part)
{
    m_normal = normal;
    m_tessellator.begin(normal);
    for (const Ring& ring : ringsOf(outline)) {
        std::vector<SbVec3f> points;
        std::vector<std::uint32_t> vertices;
        for (const SbVec3f& corner : ring) {
            points.push_back(m_place(corner[0], corner[1], depth));
            vertices.push_back(vertex(points.back(), normal));
        }
        m_tessellator.addContour(points, vertices);
    }
    m_tessellator.end(m_geometry.triangles);
    m_geometry.triangleParts.resize(m_geometry.getNumTriangles(), part);
}

void OutlineFiller::addWalls(const QPainterPath& outline, float depth, int part)
{
    std::vector<Ring> rings = ringsOf(outline);
    const QPainterPath flat = flattened(rings);
    for (Ring& ring : rings) {
        if (!isFilledOnTheLeft(flat, ring))
            std::reverse(ring.begin(), ring.end());
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const SbVec3f& a = ring[i];
            const SbVec3f& b = ring[i + 1 == ring.size() ? 0 : i + 1];
            const SbVec3f corners[] = {m_place(a[0], a[1], 0), m_place(a[0], a[1], depth), m_place(b[0], b[1], depth),
                                       m_place(b[0], b[1], 0)};
            SbVec3f normal = (corners[1] - corners[0]).cross(corners[3] - corners[0]);
            normal.normalize();
            std::uint32_t at[4];
            for (int k = 0; k < 4; ++k)
                at[k] = vertex(corners[k], normal);
            m_geometry.triangles.insert(m_geometry.triangles.end(), {at[0], at[1], at[2], at[0], at[2], at[3]});
        }
    }
    m_geometry.triangleParts.resize(m_geometry.getNumTriangles(), part);
}
