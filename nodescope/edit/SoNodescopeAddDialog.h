#pragma once

#include <nodescope/NodescopeApi.h>

#include <QDialog>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class SoNodescopeTreeView;

/**
 * Offers every node type that can be made, by category, to be added at the tree's current row. It stays open, so that
 * several nodes can be added one after the other.
 */
class NODESCOPE_API SoNodescopeAddDialog : public QDialog {
    Q_OBJECT
public:
    /** The tree view must live as long as the dialog. */
    SoNodescopeAddDialog(SoNodescopeTreeView& treeView, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

protected slots:
    void addNode();
    void findNode();
    void selectionChanged();
    void itemDoubleClick(QTreeWidgetItem* item);

private:
    QLayout* makeTypeList();
    QLayout* makeButtons();
    void fillTypeList();
    /** Makes the first type current that contains the search text, from an item on and round. */
    void search(QTreeWidgetItem* start);

    SoNodescopeTreeView& m_treeView;
    QTreeWidget* m_types = nullptr;
    QLineEdit* m_searchText = nullptr;
    QPushButton* m_add = nullptr;
};
