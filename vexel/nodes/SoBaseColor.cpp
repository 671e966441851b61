#include <vexel/nodes/SoBaseColor.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoBaseColor::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (rgb.isIgnored() || rgb.getNum() == 0 || !state.mayChange(SO_OVERRIDE_DIFFUSE, isOverride()))
        return;
    state->diffuseColor = stateList(rgb, *this);
    state->packedColor = {};
}
