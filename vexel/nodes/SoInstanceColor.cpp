#include <vexel/nodes/SoInstanceColor.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoInstanceColor::applyInstance(SoAction& action, int instance) const
{
    if (diffuseColor.getNum() == 0 || !action.state().mayChange(SO_OVERRIDE_DIFFUSE, isOverride()))
        return;
    const int index = std::min(instance, diffuseColor.getNum() - 1);
    action.state()->diffuseColor = {diffuseColor.getValues(index), 1, this};
    action.state()->packedColor = {};
}
