#include <vexel/nodes/SoSeparator.h>

#include <vexel/actions/SoAction.h>

void SoSeparator::doAction(SoAction& action)
{
    action.state().push();
    if (action.enterSeparator(*this)) {
        SoGroup::doAction(action);
        action.leaveSeparator(*this);
    }
    action.state().pop();
}
