#include <vexel/nodes/SoTextureCoordinate3.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoTextureCoordinate3::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (point.isIgnored() || !state.mayChange(SO_OVERRIDE_TEXTURE_COORDINATES, isOverride()))
        return;
    SoStateValues& values = *state;
    values.textureCoordinates3 = stateList(point, *this);
    values.textureCoordinates2 = {};
    values.textures[static_cast<std::size_t>(values.textureUnit)].function = nullptr;
}
