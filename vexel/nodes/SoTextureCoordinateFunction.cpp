#include <vexel/nodes/SoTextureCoordinateFunction.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoTextureCoordinateFunction::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (state.mayChange(SO_OVERRIDE_TEXTURE_COORDINATES, isOverride()))
        state->textures[static_cast<std::size_t>(state->textureUnit)].function = this;
}
