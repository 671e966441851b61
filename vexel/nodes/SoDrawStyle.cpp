#include <vexel/nodes/SoDrawStyle.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoDrawStyle::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyValue(state, style, *this, SO_OVERRIDE_DRAW_STYLE, state->drawStyle);
    applyValue(state, pointSize, *this, SO_OVERRIDE_POINT_SIZE, state->pointSize);
    applyValue(state, lineWidth, *this, SO_OVERRIDE_LINE_WIDTH, state->lineWidth);
    if (!state.mayChange(SO_OVERRIDE_LINE_PATTERN, isOverride()))
        return;
    if (!linePattern.isIgnored())
        state->linePattern = linePattern.getValue();
    if (!linePatternScaleFactor.isIgnored())
        state->linePatternScale = linePatternScaleFactor.getValue();
}
