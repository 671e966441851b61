#include <vexel/nodes/SoPolygonOffset.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoPolygonOffset::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_POLYGON_OFFSET, isOverride()))
        return;
    if (!factor.isIgnored())
        state->polygonOffsetFactor = factor.getValue();
    if (!units.isIgnored())
        state->polygonOffsetUnits = units.getValue();
    if (!styles.isIgnored())
        state->polygonOffsetStyles = styles.getValue();
    if (!on.isIgnored())
        state->polygonOffsetOn = on.getValue();
}
