#pragma once

#include <extension/NscCommand.h>
#include <nodescope/NodescopeApi.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoWeakPtr.h>

#include <vector>

class SbName;
class SoCommandManager;
class SoTreeViewItem;

/**
 * Adds nodes at a row: below its node, or behind it when it takes no children. Each addition is made at once and gives
 * the command to the history, which may therefore hold it several times; undo takes back all that was added.
 */
class NODESCOPE_API SoTreeAddNodeCommand : public NscCommand {
public:
    SoTreeAddNodeCommand(SoCommandManager& manager, const SoTreeViewItem* item);
    ~SoTreeAddNodeCommand() override;

    /** Adds a node. A refusal is reported to the user, and answered false: then the command does not belong to the
     * history, unless an earlier addition succeeded. */
    bool addNode(SoNode* node);
    /** Adds a new node of a type; false for the name of no type that can be made, too. */
    bool addType(const SbName& type);
    /** Adds a new node of each type; false when none could be added. */
    bool addTypes(const std::vector<SbName>& types);

    bool execute() override { return !m_done.empty(); }
    void undo() override;
    void redo() override;

private:
    static constexpr int Appended = -1;
    struct Addition {
        int index; ///< among the children of the target
        SoWeakPtr<SoNode> node;
    };

    bool place(SoNode& node);

    SoCommandManager& m_manager;
    const SoTreeViewItem* m_item; ///< valid while nodes are added, not later
    SoWeakPtr<SoNode> m_target;
    SoWeakPtr<SoNode> m_parent;
    bool m_addsBeside = false;
    std::vector<Addition> m_done;
    std::vector<Addition> m_undone; ///< the command holds a reference to these nodes
};
