#include <vexel/nodes/SoEnvironment.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoEnvironment::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (state.mayChange(SO_OVERRIDE_ENVIRONMENT, isOverride()))
        state->environment = this;
}
