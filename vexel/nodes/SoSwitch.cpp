#include <vexel/nodes/SoSwitch.h>

#include <vexel/actions/SoAction.h>

void SoSwitch::doAction(SoAction& action)
{
    const SoChildList& children = *getChildren();
    if (action.isSearchingAll()) {
        action.traverseChildren(children);
        return;
    }
    const int before = action.state()->switchChild;
    int choice = whichChild.isIgnored() ? int(SO_SWITCH_NONE) : whichChild.getValue();
    if (choice == SO_SWITCH_INHERIT) {
        choice = before;
        // Copies are counted without regard to how many children there are.
        if (choice >= 0 && children.getLength() > 0)
            choice %= children.getLength();
    }
    action.state()->switchChild = choice;
    if (choice == SO_SWITCH_ALL)
        action.traverseChildren(children);
    else
        action.traverseChild(children, choice);
    action.state()->switchChild = before;
}

bool SoSwitch::affectsState() const
{
    const int choice = whichChild.getValue();
    if (choice == SO_SWITCH_NONE)
        return false;
    if (choice < 0 || choice >= getNumChildren())
        return SoGroup::affectsState();
    return getChild(choice)->affectsState();
}
