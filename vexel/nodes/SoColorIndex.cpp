#include <vexel/nodes/SoColorIndex.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoColorIndex::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyList(state, index, *this, SO_OVERRIDE_DIFFUSE, state->colorIndex);
}
