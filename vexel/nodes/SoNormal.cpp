#include <vexel/nodes/SoNormal.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoNormal::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!vector.isIgnored() && state.mayChange(SO_OVERRIDE_NORMALS, isOverride()))
        state->normals = stateList(vector, *this);
}
