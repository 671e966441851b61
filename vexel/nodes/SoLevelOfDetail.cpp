#include <vexel/nodes/SoLevelOfDetail.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/state/SoState.h>

int SoLevelOfDetail::whichToTraverse(const SoState& state) const
{
    if (getNumChildren() == 0)
        return -1;
    if (!state->camera)
        return 0;
    SoGetBoundingBoxAction boxAction(state.getViewportRegion());
    boxAction.apply(getChild(0));
    SbBox3f box = boxAction.getBoundingBox();
    if (box.isEmpty())
        return 0;
    box.transform(state->model);
    const SbVec2f part = state->viewVolume.projectBox(box);
    const SbVec2s pixels = state.getViewPixels();
    const float area = part[0] * static_cast<float>(pixels[0]) * part[1] * static_cast<float>(pixels[1]);
    int child = 0;
    while (child < screenArea.getNum() && area < screenArea[child])
        ++child;
    return std::min(child, getNumChildren() - 1);
}

void SoLevelOfDetail::doAction(SoAction& action)
{
    if (action.isSearchingAll())
        SoGroup::doAction(action);
    else
        action.traverseChild(*getChildren(), whichToTraverse(action.state()));
}
