#include <vexel/nodes/SoShapeHints.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoShapeHints::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_SHAPE_HINTS, isOverride()))
        return;
    if (!vertexOrdering.isIgnored())
        state->vertexOrdering = vertexOrdering.getValue();
    if (!shapeType.isIgnored())
        state->shapeType = shapeType.getValue();
    if (!faceType.isIgnored())
        state->faceType = faceType.getValue();
    if (!creaseAngle.isIgnored())
        state->creaseAngle = creaseAngle.getValue();
}
