#include <vexel/nodes/SoResetTransform.h>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/state/SoState.h>

SbMatrix SoResetTransform::getMatrix(const SoState& state) const
{
    return (whatToReset.getValue() & TRANSFORM) != 0 ? state->model.inverse() : SbMatrix::identity();
}

void SoResetTransform::doAction(SoAction& action)
{
    if (whatToReset.isIgnored())
        return;
    auto* boxAction = action.isOfType(SoGetBoundingBoxAction::getClassTypeId())
                          ? static_cast<SoGetBoundingBoxAction*>(&action)
                          : nullptr;
    if ((whatToReset.getValue() & TRANSFORM) != 0) {
        action.state()->model.makeIdentity();
        if (boxAction)
            boxAction->leaveTransformsAbove();
    }
    if ((whatToReset.getValue() & BBOX) != 0 && boxAction)
        boxAction->forgetBoundingBox();
}
