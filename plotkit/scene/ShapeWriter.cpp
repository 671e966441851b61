#include "ShapeWriter.h"

#include "LineLead.h"
#include "LinePattern.h"
#include "TextWriter.h"

#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoMarkerSet.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/SoText2.h>
#include <vexel/state/SoState.h>

#include <algorithm>
#include <utility>

namespace {

double turn(const PagePoint& a, const PagePoint& b, const PagePoint& c)
{
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

} // namespace

ShapeWriter::ShapeWriter(const SoState& state, const SoShape& shape, const PageRect& picture, double pixel,
                         PagePrimitives& primitives)
    : m_state(state), m_shape(shape), m_projection(state, picture), m_shader(state),
      m_refiner(m_projection, m_shader, [this](const TriangleRefiner::Corners& corners) { addPart(corners); }),
      m_pixel(pixel), m_primitives(primitives)
{
    shape.buildGeometry(state, m_geometry);
    const SoStateValues& values = *state;
    m_isSolid = (shape.getDependencies() & SoShape::ON_SHAPE_HINTS) != 0 &&
                values.vertexOrdering != SoShapeHints::UNKNOWN_ORDERING && values.shapeType == SoShapeHints::SOLID;
    m_isClockwise = values.vertexOrdering == SoShapeHints::CLOCKWISE;
    m_shader.setTwoSided(!m_isSolid);
    m_normalMatrix = values.model.inverse().transpose();
}

void ShapeWriter::write()
{
    if (m_shape.isOfType(SoText2::getClassTypeId()) && !m_geometry.isEmpty()) {
        if (m_state->drawStyle != SoDrawStyle::INVISIBLE)
            TextWriter(m_state, m_projection, m_shader, m_pixel)
                .write(static_cast<const SoText2&>(m_shape), m_primitives);
        return;
    }
    switch (m_state->drawStyle) {
    case SoDrawStyle::INVISIBLE:
        return;
    case SoDrawStyle::LINES:
        addEdges();
        break;
    case SoDrawStyle::POINTS:
        for (std::size_t i = 0; i < m_geometry.points.size(); ++i)
            addPoint(std::uint32_t(i));
        return;
    default:
        for (std::size_t i = 0; i + 2 < m_geometry.triangles.size(); i += 3)
            addTriangle(&m_geometry.triangles[i]);
    }
    for (std::size_t i = 0; i + 1 < m_geometry.lines.size(); i += 2)
        addSegment(m_geometry.lines[i], m_geometry.lines[i + 1]);
    for (const std::uint32_t index : m_geometry.pointVertices)
        addPoint(index, m_geometry.markers.empty() ? -1 : m_geometry.markers[index]);
}

SurfacePoint ShapeWriter::pointOf(std::uint32_t index) const
{
    SurfacePoint point;
    m_state->model.multVecMatrix(m_geometry.points[index], point.place);
    if (!m_geometry.normals.empty())
        m_normalMatrix.multDirMatrix(m_geometry.normals[index], point.normal);
    point.normal.normalize();
    if (!m_geometry.textureCoordinates.empty())
        point.textureCoordinate = m_geometry.textureCoordinates[index];
    if (m_shader.texture())
        point.textureCoordinate =
            m_shader.texture().coordinate(point.textureCoordinate, m_geometry.points[index], point.normal);
    const int material = m_geometry.materialIndices.empty() ? 0 : int(m_geometry.materialIndices[index]);
    const SurfaceMaterial its = SurfaceMaterial::of(m_state, material);
    point.base = SbVec4f(its.diffuse[0], its.diffuse[1], its.diffuse[2], its.alpha);
    return point;
}

/** The part of a polygon, or of a line of two points, that is in the picture. */
std::vector<SurfacePoint> ShapeWriter::inPicture(std::vector<SurfacePoint> points, bool isClosed) const
{
    std::vector<SurfacePoint> kept;
    for (std::size_t bound = 0; bound < m_projection.numBounds() && !points.empty(); ++bound) {
        kept.clear();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const SurfacePoint& p = points[i];
            const double dp = m_projection.distance(bound, p.place);
            if (dp >= 0)
                kept.push_back(p);
            if (!isClosed && i + 1 == points.size())
                break;
            const SurfacePoint& q = points[(i + 1) % points.size()];
            const double dq = m_projection.distance(bound, q.place);
            if ((dp < 0 && dq > 0) || (dp > 0 && dq < 0))
                kept.push_back(p.towards(q, float(dp / (dp - dq))));
        }
        points.swap(kept);
    }
    return points;
}

void ShapeWriter::addTriangle(const std::uint32_t* indices)
{
    std::vector<SurfacePoint> corners{pointOf(indices[0]), pointOf(indices[1]), pointOf(indices[2])};
    if (m_geometry.normals.empty()) {
        SbVec3f normal = (corners[1].place - corners[0].place).cross(corners[2].place - corners[0].place);
        normal.normalize();
        for (SurfacePoint& corner : corners)
            corner.normal = normal;
    }
    corners = inPicture(std::move(corners), true);
    if (corners.size() < 3)
        return;
    std::vector<ShadedPoint> shaded;
    shaded.reserve(corners.size());
    for (const SurfacePoint& corner : corners)
        shaded.push_back(m_refiner.shade(corner));
    for (std::size_t i = 2; i < shaded.size(); ++i)
        m_refiner.refine({shaded[0], shaded[i - 1], shaded[i]});
}

void ShapeWriter::addPart(const TriangleRefiner::Corners& corners)
{
    auto [a, b, c] = corners;
    const double side = turn(a.projected.place, b.projected.place, c.projected.place);
    if (side == 0 || (m_isSolid && (side < 0) != m_isClockwise))
        return;
    if (side < 0)
        std::swap(b, c);
    const float leastAlpha = std::min({a.color.alpha, b.color.alpha, c.color.alpha});
    if (std::max({a.color.alpha, b.color.alpha, c.color.alpha}) <= 0)
        return;
    m_primitives.surfaces.push_back({{a.projected.place, b.projected.place, c.projected.place},
                                     {a.projected.depth, b.projected.depth, c.projected.depth},
                                     leastAlpha >= 1});
    m_primitives.surfaceColors.push_back({a.color, b.color, c.color});
}

void ShapeWriter::addEdges()
{
    if (!m_geometry.outline.empty()) {
        for (std::size_t i = 0; i + 1 < m_geometry.outline.size(); i += 2)
            addSegment(m_geometry.outline[i], m_geometry.outline[i + 1]);
        return;
    }
    for (std::size_t i = 0; i + 2 < m_geometry.triangles.size(); i += 3) {
        for (std::size_t k = 0; k < 3; ++k)
            addSegment(m_geometry.triangles[i + k], m_geometry.triangles[i + (k + 1) % 3]);
    }
}

PageColor ShapeWriter::colorOf(const SurfacePoint& point) const
{
    return m_shader.color(point, !m_geometry.normals.empty());
}

LineStyle ShapeWriter::lineStyle(const PageColor& color) const
{
    LineStyle style;
    const float width = m_state->lineWidth;
    style.width = double(width > 0 ? width : 1) * m_pixel;
    style.color = color;
    const double piece = m_pixel * std::max(m_state->linePatternScale, 1);
    for (const double length : LinePattern::dashes(m_state->linePattern))
        style.dashes.push_back(length * piece);
    return style;
}

void ShapeWriter::addSegment(std::uint32_t from, std::uint32_t to)
{
    if (m_state->linePattern == 0)
        return;
    const std::vector<SurfacePoint> ends = inPicture({pointOf(from), pointOf(to)}, false);
    if (ends.size() < 2)
        return;
    const ProjectedPoint a = m_projection.project(ends[0].place);
    const ProjectedPoint b = m_projection.project(ends[1].place);
    m_primitives.segments.push_back({{a.place, b.place},
                                     {a.depth - Line_lead, b.depth - Line_lead},
                                     lineStyle(colorOf(ends[0].towards(ends[1], 0.5f)))});
}

void ShapeWriter::addPoint(std::uint32_t index, int marker)
{
    const std::vector<SurfacePoint> points = inPicture({pointOf(index)}, false);
    if (points.empty())
        return;
    ProjectedPoint at = m_projection.project(points[0].place);
    at.depth -= Line_lead;
    const PageColor color = colorOf(points[0]);
    if (marker >= 0) {
        addSign(at, marker, color);
        return;
    }
    const float size = m_state->pointSize;
    m_primitives.dots.push_back({at.place, at.depth, double(size > 0 ? size : 1) * m_pixel, color});
}

void ShapeWriter::addSign(const ProjectedPoint& at, int marker, const PageColor& color)
{
    PagePrimitives::Sign sign{at.place, at.depth, {}, color};
    const int size = SoMarkerSet::getNumPixels(marker);
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column) {
            if (SoMarkerSet::hasPixel(marker, column, row))
                sign.parts.push_back({at.place.x + (column - size / 2.0) * m_pixel,
                                      at.place.y + (size / 2.0 - row - 1) * m_pixel, m_pixel, m_pixel});
        }
    }
    m_primitives.signs.push_back(std::move(sign));
}
