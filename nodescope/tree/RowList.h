#pragma once

#include <QList>

class NodeRowRegistry;
class SoNode;
class SoTreeViewItem;

/** The rows that show one node, in the order in which they were made. A row takes itself out when it goes. */
class RowList {
public:
    RowList(NodeRowRegistry* registry, const SoNode* node) : m_registry(registry), m_node(node) {}
    RowList(const RowList&) = delete;
    RowList& operator=(const RowList&) = delete;

    SoTreeViewItem* first() const { return m_first; }
    static SoTreeViewItem* next(const SoTreeViewItem* row);
    static SoTreeViewItem* previous(const SoTreeViewItem* row);
    int size() const { return m_size; }
    QList<SoTreeViewItem*> rows() const;

    void append(SoTreeViewItem* row);
    /** Takes a row out of the list that keeps it, if any; an empty list leaves the registry. */
    static void remove(SoTreeViewItem* row);

private:
    NodeRowRegistry* m_registry;
    const SoNode* m_node;
    SoTreeViewItem* m_first = nullptr;
    SoTreeViewItem* m_last = nullptr;
    int m_size = 0;
};
