#pragma once

#include <extension/NscCommand.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoWeakPtr.h>

class SoCommandManager;
class SoTreeViewItem;

/** Moves a child to another place of the graph, when it is made. */
class SoTreeMoveNodeCommand : public NscCommand {
public:
    /**
     * @param itemToMove       the row of the child
     * @param itemInsertAfter  the row it was dropped on
     * @param spaceBarPressed  true: behind that row; false: below it, if it takes children
     */
    SoTreeMoveNodeCommand(SoCommandManager& manager, const SoTreeViewItem* itemToMove,
                          const SoTreeViewItem* itemInsertAfter, bool spaceBarPressed);

    /** False when the child is not counted as moved, because its index is the one it had, in whichever parent. */
    bool isMoved() const { return m_isMoved; }

    bool execute() override { return m_isMoved; }
    void undo() override;
    void redo() override;

private:
    bool chooseDestination(const SoTreeViewItem& target, const SoTreeViewItem& moved, bool isBehind);
    void chooseBehind(const SoTreeViewItem& target);
    void move(const SoWeakPtr<SoNode>& from, int fromIndex, const SoWeakPtr<SoNode>& to, int toIndex);

    SoCommandManager& m_manager;
    SoWeakPtr<SoNode> m_moved;
    SoWeakPtr<SoNode> m_source;
    SoWeakPtr<SoNode> m_destination;
    int m_sourceIndex = -1;
    int m_destinationIndex = -1;
    bool m_isMoved = false;
};
