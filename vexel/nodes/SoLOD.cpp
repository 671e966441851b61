#include <vexel/nodes/SoLOD.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

int SoLOD::whichToTraverse(const SoState& state) const
{
    if (getNumChildren() == 0)
        return -1;
    // Without a viewer the finest form stands for all.
    if (!state->camera)
        return 0;
    SbVec3f middle;
    state->model.multVecMatrix(center.getValue(), middle);
    const float distance = (middle - state->viewVolume.getProjectionPoint()).length();
    int child = 0;
    while (child < range.getNum() && distance >= range[child])
        ++child;
    return std::min(child, getNumChildren() - 1);
}

void SoLOD::doAction(SoAction& action)
{
    if (action.isSearchingAll())
        SoGroup::doAction(action);
    else
        action.traverseChild(*getChildren(), whichToTraverse(action.state()));
}
