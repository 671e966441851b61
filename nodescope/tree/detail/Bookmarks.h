#pragma once

class QTreeWidget;
class SoTreeViewItem;

/** The rows of a view that carry a bookmark. */
class Bookmarks {
public:
    explicit Bookmarks(QTreeWidget* view) : m_view(view) {}

    /** The bookmark behind or before the current row, going on at the other end; null when there is none. */
    SoTreeViewItem* step(bool forward) const;
    void clear();

private:
    QTreeWidget* m_view;
};
