#pragma once

class QTreeWidgetItem;
class SoField;
class SoNode;
class SoTreeViewItem;

/** Makes rows outside the view, each with all rows below it, to be put into the view as a whole. */
class RowBuilder {
public:
    enum class Children { AtOnce, OnDemand };
    explicit RowBuilder(Children children) : m_children(children) {}

    /** A row for a node that will stand below @p parent; null for a top-level row. */
    SoTreeViewItem* build(SoNode& node, SoField* field, SoTreeViewItem* parent) const;
    /** Makes the child rows of a row of the view that has none yet. */
    void buildChildren(SoTreeViewItem& row) const;

    /** True when a graph makes at most @p most rows; shared parts are counted once for each place, yet looked at once.
     */
    static bool makesAtMost(SoNode& root, int most);

private:
    void fill(SoTreeViewItem& row, const SoTreeViewItem* above, const SoTreeViewItem* aboveInView) const;

    Children m_children;
};
