#pragma once

#include <utility>
#include <vector>

class RowMarks;
class SoField;
class SoNode;
class SoNodescopeTreeView;
class SoTreeViewItem;

/**
 * Brings the child rows of single rows in step with the graph. Rows that a change does not concern stay as they are,
 * and so does the current row; when it goes, the row above it becomes current.
 *
 * Places count the rows of children, which stand in front of the rows of fields.
 */
class RowSynchronizer {
public:
    explicit RowSynchronizer(SoNodescopeTreeView& view) : m_view(view) {}

    /** The row's node has got a child at a place. */
    void childInserted(SoTreeViewItem& row, SoNode& child, int place);
    /** The child at a place of the row's node has gone. */
    void childRemoved(SoTreeViewItem& row, int place);
    void childReplaced(SoTreeViewItem& row, SoNode& child, int place);
    /** The row stands for a file or an inline node: makes all rows of its contents anew. */
    void reload(SoTreeViewItem& row);
    /** Whatever happened: compares all child rows with the graph and exchanges those that differ. */
    void synchronize(SoTreeViewItem& row);

    /** What is marked in the rows of this node comes back when the node does, elsewhere; null ends that. */
    void keepMarksOf(const SoNode* node, RowMarks* marks);

private:
    using Source = std::pair<SoNode*, SoField*>;

    bool isPending(SoTreeViewItem& row) const;
    void insertRow(SoTreeViewItem& row, const Source& source, int place);
    void removeRows(SoTreeViewItem& row, int first, int count);

    SoNodescopeTreeView& m_view;
    const SoNode* m_markedNode = nullptr;
    RowMarks* m_marks = nullptr;
};
