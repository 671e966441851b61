#include <vexel/nodes/SoTransformSeparator.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbMatrix.h>

void SoTransformSeparator::doAction(SoAction& action)
{
    const SbMatrix model = action.state()->model;
    SoGroup::doAction(action);
    action.state()->model = model;
}
