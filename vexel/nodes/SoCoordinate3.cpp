#include <vexel/nodes/SoCoordinate3.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoCoordinate3::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (point.isIgnored() || !state.mayChange(SO_OVERRIDE_COORDINATES, isOverride()))
        return;
    state->coordinates3 = stateList(point, *this);
    state->coordinates4 = {};
}
