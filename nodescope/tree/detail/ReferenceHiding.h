#pragma once

#include <QList>

class NodeRowRegistry;
class RowList;
class SoNode;
class SoTreeViewItem;

/** Hides and shows again the rows by which a shared node stands in further places. */
class ReferenceHiding {
public:
    explicit ReferenceHiding(NodeRowRegistry& registry) : m_registry(registry) {}

    /** Leaves the first row of the node of @p row active, or of every shared node for null. */
    void hide(const SoTreeViewItem* row);
    void show(const SoTreeViewItem* row);
    /** The rows of a node that has several; none for one that has not. */
    QList<SoTreeViewItem*> references(const SoNode& node) const;
    /** The next or previous row of the same node, round and round; null for a node that has one row only. */
    SoTreeViewItem* step(const SoTreeViewItem* row, bool forward) const;

private:
    template <class Change>
    void forEachList(const SoTreeViewItem* row, Change&& change);

    NodeRowRegistry& m_registry;
};
