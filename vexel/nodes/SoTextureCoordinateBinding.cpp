#include <vexel/nodes/SoTextureCoordinateBinding.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoTextureCoordinateBinding::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, value, *this, SO_OVERRIDE_TEXTURE_BINDING, state->textureCoordinateBinding);
}
