#pragma once

#include <QList>
#include <QPointer>

class SoFieldContainer;
class SoNode;
class SoNodescopeEdition;
class SoNodescopeTreeView;
class SoTreeViewItem;

/** Keeps the pages of the node overview and the rows of the tree together. Does nothing while one of them is missing.
 */
class OverviewTabs {
public:
    void setTreeView(SoNodescopeTreeView* treeView) { m_treeView = treeView; }
    void setEdition(SoNodescopeEdition* edition) { m_edition = edition; }
    SoNodescopeEdition* edition() const { return m_edition; }

    /** Shows a row's node, the current row's for null. */
    void show(SoTreeViewItem* row, bool addTab);
    /** Shows a container on the current page, unless it is there already, and lets the tree follow. */
    void show(SoFieldContainer* container);
    /** Makes the row of the current page the tree's current one; nobody is told. */
    void highlightRow();
    /** Closes a page unless it is the only one; -1: the current one. */
    void close(int index);

    /** The row of each page; null for a page whose row is gone or unknown. */
    QList<SoTreeViewItem*> rows() const;
    /** The node on the current page; null for none. */
    SoNode* shownNode() const;

private:
    void rememberRow(SoTreeViewItem* row);
    SoTreeViewItem* rowOf(int page) const;
    SoTreeViewItem* anyRowOf(SoFieldContainer* container) const;

    QPointer<SoNodescopeTreeView> m_treeView;
    QPointer<SoNodescopeEdition> m_edition;
};
