#include <vexel/nodes/SoTransformation.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbMatrix.h>

void SoTransformation::doAction(SoAction& action)
{
    const SbMatrix matrix = getMatrix(action.state());
    action.state()->model.multLeft(matrix);
}
