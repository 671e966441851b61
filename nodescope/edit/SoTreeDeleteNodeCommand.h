#pragma once

#include <extension/NscCommand.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoWeakPtr.h>

#include <vexel/base/SbName.h>

class SoCommandManager;
class SoField;
class SoTreeViewItem;

/**
 * Takes a node out of the place that a row shows: out of its parent, of the field that holds it, or of its nodekit. It
 * does so when it is made. While nobody else holds the node, the command does.
 */
class SoTreeDeleteNodeCommand : public NscCommand {
public:
    /**
     * A node that cannot be deleted is reported to the user, and stays.
     * @param item       null: nothing is deleted
     * @param canDelete  receives whether the node was deleted
     */
    SoTreeDeleteNodeCommand(SoCommandManager& manager, SoTreeViewItem* item, bool& canDelete);
    ~SoTreeDeleteNodeCommand() override;

    bool execute() override { return m_isDone; }
    void undo() override;
    void redo() override;

private:
    enum class Kind { Nothing, Child, FieldValue, Part, ListItem };

    void choosePart(const SoTreeViewItem& item);
    void chooseChild(const SoTreeViewItem& item);
    bool perform();
    bool remove(SoNode& node);
    bool restore(SoNode& node);
    bool removeFromField(const SoNode& node);
    void restoreInField(SoNode& node);
    void dropReference();

    SoCommandManager& m_manager;
    SoWeakPtr<SoNode> m_node;
    SoWeakPtr<SoNode> m_container; ///< parent, kit, list, or owner of the field; none for the root of the scene
    Kind m_kind = Kind::Nothing;
    SoField* m_field = nullptr;
    SbName m_partName;
    int m_index = -1; ///< among the children, items or values
    bool m_hasContainer = false;
    bool m_holdsReference = false;
    bool m_isDone = false;
};
