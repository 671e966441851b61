#include <vexel/nodes/SoTextureUnit.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoTextureUnit::doAction(SoAction& action)
{
    if (!unit.isIgnored())
        action.state()->textureUnit = std::clamp(unit.getValue(), 0, SoStateValues::NumTextureUnits - 1);
}
