#include <vexel/nodes/SoFont.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoFont::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_FONT, isOverride()))
        return;
    if (!name.isIgnored()) {
        state->fontName = name.getValue();
        state->fontFamily = -1;
    }
    if (!size.isIgnored())
        state->fontSize = size.getValue();
}
