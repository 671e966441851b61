#include <vexel/nodes/SoMaterialBinding.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoMaterialBinding::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, value, *this, SO_OVERRIDE_MATERIAL_BINDING, state->materialBinding);
}
