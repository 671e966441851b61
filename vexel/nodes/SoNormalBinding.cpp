#include <vexel/nodes/SoNormalBinding.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoNormalBinding::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, value, *this, SO_OVERRIDE_NORMAL_BINDING, state->normalBinding);
}
