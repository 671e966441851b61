#include <vexel/nodes/SoMultipleCopy.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/Copies.h>
#include <vexel/state/SoState.h>

void SoMultipleCopy::doAction(SoAction& action)
{
    if (!action.needsState()) {
        SoGroup::doAction(action);
        return;
    }
    for (int i = 0; i < matrix.getNum() && !action.hasTerminated(); ++i)
        traverseCopy(*this, action, i, [&](SoState& state) { state->model.multLeft(matrix[i]); });
}
