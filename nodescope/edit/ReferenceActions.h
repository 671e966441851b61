#pragma once

#include <QObject>

class QTreeWidgetItem;
class SoNodescopeMainFrame;
class SoNodescopeTreeView;
class SoTreeViewItem;

/** Enables the main frame's actions on references as the tree's current row allows. */
class ReferenceActions : public QObject {
    Q_OBJECT
public:
    ReferenceActions(SoNodescopeMainFrame& frame, SoNodescopeTreeView& treeView);

private:
    void update(const SoTreeViewItem* row);

    SoNodescopeMainFrame& m_frame;
    SoNodescopeTreeView& m_treeView;
};
