#include <vexel/nodes/SoPackedColor.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoPackedColor::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyList(state, orderedRGBA, *this, SO_OVERRIDE_DIFFUSE, state->packedColor);
}
