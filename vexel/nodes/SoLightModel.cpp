#include <vexel/nodes/SoLightModel.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoLightModel::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, model, *this, SO_OVERRIDE_LIGHT_MODEL, state->lightModel);
}
