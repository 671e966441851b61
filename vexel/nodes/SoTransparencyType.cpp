#include <vexel/nodes/SoTransparencyType.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoTransparencyType::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, value, *this, SO_OVERRIDE_TRANSPARENCY_TYPE, state->transparencyType);
}
