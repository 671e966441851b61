#include "Bookmarks.h"

#include <nodescope/tree/SoTreeViewItem.h>

#include <QTreeWidgetItemIterator>

SoTreeViewItem* Bookmarks::step(bool forward) const
{
    QList<SoTreeViewItem*> marked;
    int current = -1; // number of bookmarks before the current row
    for (QTreeWidgetItemIterator each(m_view); *each; ++each) {
        if (*each == m_view->currentItem())
            current = marked.size();
        auto* row = static_cast<SoTreeViewItem*>(*each);
        if (row->isBookmarked())
            marked.append(row);
    }
    const int count = marked.size();
    if (count == 0)
        return nullptr;
    const bool isOnOne = current >= 0 && current < count && marked[current] == m_view->currentItem();
    const int behind = current < 0 ? 0 : current + (isOnOne ? 1 : 0);
    const int before = (current < 0 ? count : current) - 1;
    return marked[((forward ? behind : before) + count) % count];
}

void Bookmarks::clear()
{
    for (QTreeWidgetItemIterator each(m_view); *each; ++each)
        static_cast<SoTreeViewItem*>(*each)->setBookmarked(false);
}
