#include <vexel/nodes/SoResetTransform.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

SbMatrix SoResetTransform::getMatrix(const SoState& state) const
{
    return (whatToReset.getValue() & TRANSFORM) != 0 ? state->model.inverse() : SbMatrix::identity();
}

void SoResetTransform::doAction(SoAction& action)
{
    if (!whatToReset.isIgnored() && (whatToReset.getValue() & TRANSFORM) != 0)
        action.state()->model.makeIdentity();
}
