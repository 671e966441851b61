#include <vexel/nodes/SoShape.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/state/SoShapeGeometry.h>

void SoShape::doAction(SoAction& action)
{
    action.visitShape(*this);
}

SbBox3f SoShape::computeBoundingBox(const SoState& state) const
{
    SoShapeGeometry geometry;
    buildGeometry(state, geometry);
    return geometry.getBoundingBox();
}
