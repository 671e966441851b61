#include <vexel/actions/SoGetPrimitiveCountAction.h>

#include <vexel/nodes/SoShape.h>
#include <vexel/state/SoShapeGeometry.h>

void SoGetPrimitiveCountAction::beginTraversal()
{
    m_triangles = m_lines = m_points = m_shapes = 0;
}

void SoGetPrimitiveCountAction::visitShape(SoShape& shape)
{
    SoShapeGeometry geometry;
    shape.buildGeometry(state(), geometry);
    m_triangles += static_cast<std::int64_t>(geometry.getNumTriangles());
    m_lines += static_cast<std::int64_t>(geometry.getNumLines());
    m_points += static_cast<std::int64_t>(geometry.getNumPoints());
    ++m_shapes;
}
