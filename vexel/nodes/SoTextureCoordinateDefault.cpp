#include <vexel/nodes/SoTextureCoordinateDefault.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoTextureCoordinateDefault::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_TEXTURE_COORDINATES, isOverride()))
        return;
    SoStateValues& values = *state;
    values.textureCoordinates2 = {};
    values.textureCoordinates3 = {};
    values.textures[static_cast<std::size_t>(values.textureUnit)].function = nullptr;
}
