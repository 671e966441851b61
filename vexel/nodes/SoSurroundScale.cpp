#include <vexel/nodes/SoSurroundScale.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoGetMatrixAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbRotation.h>
#include <vexel/base/SbViewportRegion.h>
#include <vexel/base/SoPath.h>
#include <vexel/state/SoState.h>

namespace {

/** The box of a graph without one of its nodes. */
class BoxWithoutNode : public SoGetBoundingBoxAction {
    SO_ACTION(BoxWithoutNode, SoGetBoundingBoxAction)
public:
    BoxWithoutNode(const SbViewportRegion& region, const SoNode* leftOut)
        : SoGetBoundingBoxAction(region), m_leftOut(leftOut)
    {
    }

protected:
    void visitNode(SoNode& node) override
    {
        if (&node == m_leftOut)
            leaveTransformsAbove(); // a box without the node must not be kept
        else
            SoGetBoundingBoxAction::visitNode(node);
    }

private:
    const SoNode* m_leftOut;
};

} // namespace

SbMatrix SoSurroundScale::surround(const SoAction& action) const
{
    SoPath* way = action.getCurPath();
    way->ref();
    const int self = way->getFullLength() - 1;
    const int container = self - numNodesUpToContainer.getValue();
    const int reset = self - numNodesUpToReset.getValue();
    SbMatrix matrix;
    if (container >= 0 && container < self) {
        const SbViewportRegion& region = action.state().getViewportRegion();
        BoxWithoutNode boxAction(region, reset >= 0 && reset < self ? way->getNode(reset) : nullptr);
        boxAction.apply(way->getNode(container));
        SbBox3f box = boxAction.getBoundingBox();
        SoPath* above = way->copy(0, container + 1);
        above->ref();
        SoGetMatrixAction matrixAction(region);
        if (container > 0)
            matrixAction.apply(above);
        above->unref();
        if (!box.isEmpty()) {
            box.transform(matrixAction.getMatrix() * action.state()->model.inverse());
            const SbVec3f half = box.getSize() / 2;
            // A flat box keeps a little depth, so that the matrix can be inverted.
            const float least = std::max({half[0], half[1], half[2], 1e-6f}) * 1e-3f;
            matrix.setTransform(box.getCenter(), SbRotation(),
                                SbVec3f(std::max(half[0], least), std::max(half[1], least), std::max(half[2], least)));
        }
    }
    way->unref();
    return matrix;
}

void SoSurroundScale::doAction(SoAction& action)
{
    if (m_isMeasuring || !action.needsState())
        return;
    m_isMeasuring = true;
    m_matrix = surround(action);
    m_isMeasuring = false;
    SoTransformation::doAction(action);
}
