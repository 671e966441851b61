#pragma once

#include <nodescope/mainframe/ActionTable.h>
#include <nodescope/preferences/SoNodescopeState.h>

class QAction;
class QMenu;
class QTreeWidgetItem;
class SoNodescopeMainFrame;
class SoNodescopeTreeView;
class SoTreeViewItem;

/** The shared actions and the context menu of the tree view. */
class NODESCOPE_API SoTreeViewState : public SoNodescopeState {
    Q_OBJECT
public:
    /** Entries whose slot the command manager does not have stay disabled. The state goes with the tree view. */
    SoTreeViewState(SoNodescopeTreeView& treeView, SoNodescopeMainFrame& frame, QObject& commandManager);

    void activate() override;
    void deactivate() override;
    void contextMenu(QContextMenuEvent* event) override;

public slots:
    void updateItemTreeViewAction(QTreeWidgetItem* item, QTreeWidgetItem* previous = nullptr);

private:
    void fillMenu(QMenu& menu, const SoTreeViewItem& row);
    void addEntries(QMenu& menu, const struct ContextMenuEntry* begin, const struct ContextMenuEntry* end);
    void updateCurrent();
    QAction& action(ActionId id) const;
    /** Enables an action when it also has a slot to reach. */
    void enable(ActionId id, bool on);
    bool managerHas(const char* slot) const;
    /** Connects, or disables an action whose slot there is not. */
    void connectToManager(QAction& action, const char* slot);

    SoNodescopeTreeView& m_treeView;
    SoNodescopeMainFrame& m_frame;
    QObject& m_commandManager;
};
