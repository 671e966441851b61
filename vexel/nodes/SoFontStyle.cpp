#include <vexel/nodes/SoFontStyle.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoFontStyle::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_FONT, isOverride()))
        return;
    if (!family.isIgnored())
        state->fontFamily = family.getValue();
    if (!style.isIgnored())
        state->fontStyle = style.getValue();
    if (!size.isIgnored())
        state->fontSize = size.getValue();
}
