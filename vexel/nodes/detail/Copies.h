#pragma once

#include <vexel/nodes/SoGroup.h>

/** Groups show at most so many copies of their children, so that a wrong number in a file does not stop the program. */
constexpr int MostCopies = 1000000;

/** Traverses the children of a group once more, as a copy of its own: prepare(state) changes the state for it alone. */
template <class Prepare>
void traverseCopy(SoGroup& group, SoAction& action, int number, Prepare&& prepare)
{
    action.state().push();
    action.state()->switchChild = number;
    prepare(action.state());
    group.SoGroup::doAction(action);
    action.state().pop();
}
