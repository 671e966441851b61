#include <vexel/actions/SoGetMatrixAction.h>

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoNode.h>

SoGetMatrixAction::SoGetMatrixAction(const SbViewportRegion& region)
{
    state().setViewportRegion(region);
}

void SoGetMatrixAction::visitNode(SoNode& node)
{
    const SoPath* path = getPathAppliedTo();
    const bool isLast = path ? !isOnPath() && &node == path->getNode(path->getFullLength() - 1) : way().size() == 1;
    // A group at the end stands for itself: what its children do to one another does not count.
    if (!isLast || !node.isOfType(SoGroup::getClassTypeId()))
        SoAction::visitNode(node);
    if (!isLast)
        return;
    m_matrix = state()->model;
    m_inverse = m_matrix.inverse();
    m_textureMatrix = state()->textures[0].matrix;
    setTerminated(true);
}
