#include <vexel/nodes/SoAnnotation.h>

#include <vexel/actions/SoAction.h>

void SoAnnotation::doAction(SoAction& action)
{
    const bool before = action.state()->isAnnotation;
    action.state()->isAnnotation = true;
    SoSeparator::doAction(action);
    action.state()->isAnnotation = before;
}
