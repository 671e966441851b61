#include <vexel/nodes/SoDepthBuffer.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoDepthBuffer::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!state.mayChange(SO_OVERRIDE_DEPTH_BUFFER, isOverride()))
        return;
    if (!test.isIgnored())
        state->depthTest = test.getValue();
    if (!write.isIgnored())
        state->depthWrite = write.getValue();
    if (!function.isIgnored())
        state->depthFunction = function.getValue();
    if (!range.isIgnored())
        state->depthRange = range.getValue();
}
