#pragma once

class CategoryFilter;
class RowBuilder;
class SoField;
class SoNode;
class SoNodescopeTreeView;
class SoTreeViewItem;

/** Puts rows into the view: all rows of a graph at once, or, of a very large one, those of a row when it is opened. */
class RowFactory {
public:
    /** Rows are hidden as the filter says. */
    RowFactory(SoNodescopeTreeView& view, CategoryFilter& filter) : m_view(view), m_filter(filter) {}

    /** Another graph is shown: rows are made at once until they are too many. */
    void restart();
    bool isOnDemand() const { return m_isOnDemand; }

    /** See SoNodescopeTreeView::createItem(). */
    SoTreeViewItem* make(SoNode& node, SoTreeViewItem* parentRow, SoField* sourceField, int position);
    /** Makes the child rows of a row anew. */
    void makeChildren(SoTreeViewItem& row);
    /** Opens a row and all below it, with as many rows as there may be at once. */
    void expandBelow(SoTreeViewItem& row);

private:
    RowBuilder builder(SoNode& node);

    SoNodescopeTreeView& m_view;
    CategoryFilter& m_filter;
    bool m_isOnDemand = false;
};
