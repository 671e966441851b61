#include "SoTreeMoveNodeCommand.h"
#include "SoCommandManager.h"
#include "detail/ChildAccess.h"
#include <vexel/io/SoDBWriteLock.h>

#include <nodescope/tree/SoGraphTopologyManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <algorithm>

SoTreeMoveNodeCommand::SoTreeMoveNodeCommand(SoCommandManager& manager, const SoTreeViewItem* itemToMove,
                                             const SoTreeViewItem* itemInsertAfter, bool spaceBarPressed)
    : m_manager(manager)
{
    if (!itemToMove || !itemInsertAfter || itemToMove == itemInsertAfter || !ChildAccess::isRemovable(*itemToMove))
        return;
    m_moved = SoWeakPtr<SoNode>(itemToMove->node());
    m_source = SoWeakPtr<SoNode>(itemToMove->parentNode());
    m_sourceIndex = ChildAccess::find(*m_source.get(), *m_moved.get(), itemToMove->position());
    if (!chooseDestination(*itemInsertAfter, *itemToMove, spaceBarPressed))
        return;
    m_isMoved = m_sourceIndex != m_destinationIndex;
    move(m_source, m_sourceIndex, m_destination, m_destinationIndex);
}

bool SoTreeMoveNodeCommand::chooseDestination(const SoTreeViewItem& target, const SoTreeViewItem& moved, bool isBehind)
{
    const SoTreeViewItem* const above = target.fromField() ? nullptr : target.parentRow();
    const SoNode& node = *m_moved.get();
    if (ChildAccess::leadsTo(node, *target.node()))
        return false; // it would leave the graph together with its new parent
    const bool goesInto = ChildAccess::accepts(&target, node);
    const bool goesBehind = ChildAccess::accepts(above, node);
    if (isBehind) {
        if (!goesInto || !goesBehind)
            return false;
        chooseBehind(target);
    } else if (moved.parentRow() == &target) {
        m_destination = SoWeakPtr<SoNode>(target.node());
        m_destinationIndex = 0;
    } else if (goesInto) {
        m_destination = SoWeakPtr<SoNode>(target.node());
        m_destinationIndex = ChildAccess::count(*target.node());
    } else if (goesBehind) {
        chooseBehind(target);
    } else {
        return false;
    }
    return true;
}

void SoTreeMoveNodeCommand::chooseBehind(const SoTreeViewItem& target)
{
    m_destination = SoWeakPtr<SoNode>(target.parentNode());
    const SoNode* const parent = m_destination.get();
    const int index = ChildAccess::find(*parent, *target.node(), target.position());
    const bool isBehind = parent == m_source.get() ? m_sourceIndex > index : index < ChildAccess::count(*parent);
    m_destinationIndex = isBehind ? index + 1 : index;
}

void SoTreeMoveNodeCommand::move(const SoWeakPtr<SoNode>& from, int fromIndex, const SoWeakPtr<SoNode>& to, int toIndex)
{
    SoNode* const node = m_moved.get();
    if (!node || !from.get() || !to.get())
        return;
    const int index = ChildAccess::find(*from.get(), *node, std::min(fromIndex, ChildAccess::count(*from.get()) - 1));
    if (index < 0)
        return; // the host took it out
    const SoGraphTopologyManager::Move keepsMarks(m_manager.treeView()->topologyManager(), node);
    const SoDBWriteLock lock;
    node->ref();
    ChildAccess::remove(*from.get(), index);
    ChildAccess::insert(*to.get(), *node, toIndex);
    node->unrefNoDelete();
}

void SoTreeMoveNodeCommand::undo()
{
    move(m_destination, m_destinationIndex, m_source, m_sourceIndex);
}

void SoTreeMoveNodeCommand::redo()
{
    move(m_source, m_sourceIndex, m_destination, m_destinationIndex);
}
