#pragma once

class SoNodescopeTreeView;
class SoPath;
class SoSelection;
class SoTreeViewItem;

/** Carries the current row to the 3D view's selection, and what was picked there back to a row. */
class RowHighlighter {
public:
    /** The selection node, held while it is set; null for none. */
    void setSelection(SoSelection* selection);
    ~RowHighlighter();

    /** While switched off, rows mark nothing in the 3D view. */
    void setEnabled(bool on) { m_isEnabled = on; }
    /** Marks the node of a row. A row that no path of children leads to leaves things as they are. */
    void highlight(const SoTreeViewItem& row);
    /** See SoNodescopeTreeView::rowForPath(). */
    static SoTreeViewItem* rowAt(SoNodescopeTreeView& view, const SoPath& path, int firstNode);

private:
    SoPath* pathTo(const SoTreeViewItem& row) const;

    SoSelection* m_selection = nullptr;
    bool m_isEnabled = true;
};
