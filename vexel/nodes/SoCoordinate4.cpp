#include <vexel/nodes/SoCoordinate4.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoCoordinate4::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (point.isIgnored() || !state.mayChange(SO_OVERRIDE_COORDINATES, isOverride()))
        return;
    state->coordinates4 = stateList(point, *this);
    state->coordinates3 = {};
}
