#include <vexel/nodes/SoInstanceTransform.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>

void SoInstanceTransform::applyInstance(SoAction& action, int instance) const
{
    if (matrix.getNum() > 0)
        action.state()->model.multLeft(matrix[std::min(instance, matrix.getNum() - 1)]);
}
