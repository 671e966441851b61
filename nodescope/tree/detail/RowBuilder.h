#pragma once

class QTreeWidgetItem;
class SoBaseKit;
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
    /** What a row that is being built stands below. */
    struct Place {
        const SoTreeViewItem* above;       ///< the row it is put below already; null for none
        const SoTreeViewItem* aboveInView; ///< the row of the view that all of them will be put below; null for none
        SoBaseKit* kit;                    ///< the kit that describes it; null for none
    };

    void fill(SoTreeViewItem& row, const Place& place) const;

    Children m_children;
};
