#include <vexel/nodes/SoComplexity.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoComplexity::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_COMPLEXITY, isOverride()))
        return;
    if (!type.isIgnored())
        state->complexityType = type.getValue();
    if (!value.isIgnored())
        state->complexity = value.getValue();
    if (!textureQuality.isIgnored())
        state->textureQuality = textureQuality.getValue();
}
