#include <vexel/nodes/detail/LineBuilder.h>

#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

LineBuilder::LineBuilder(const SoState& state, SoShapeGeometry& geometry, const SoIndexedShape* indices,
                         std::size_t numUses)
    : m_geometry(geometry), m_vertices(state, geometry, indices, numUses)
{
}

void LineBuilder::addLine(const std::vector<ShapeCorner>& corners, int line)
{
    const ShapeCorner* before = nullptr;
    for (const ShapeCorner& corner : corners) {
        if (!m_vertices.coordinates().contains(corner.coordinate))
            continue;
        if (before) {
            const ShapePart part{line, m_segment++};
            m_geometry.lines.push_back(m_vertices.vertex(*before, part));
            m_geometry.lines.push_back(m_vertices.vertex(corner, part));
            m_geometry.lineParts.push_back(line);
        }
        before = &corner;
    }
}

void LineBuilder::addPoint(const ShapeCorner& corner)
{
    if (m_vertices.coordinates().contains(corner.coordinate))
        m_geometry.pointVertices.push_back(m_vertices.vertex(corner, {corner.running, corner.running}));
}

void LineBuilder::finish()
{
    m_vertices.finish();
}
