#include <vexel/nodes/SoPickStyle.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoPickStyle::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, style, *this, SO_OVERRIDE_PICK_STYLE, state->pickStyle);
}
