#include "RowMarks.h"

#include <nodescope/tree/SoTreeViewItem.h>

#include <QTreeWidget>

void RowMarks::take(const SoTreeViewItem& row)
{
    m_isExpanded = row.childCount() > 0 && row.isExpanded();
    m_isBookmarked = row.isBookmarked();
    m_isIgnored = row.isIgnored();
    m_isCurrent = row.treeWidget()->currentItem() == &row;
    m_isMarked = m_isExpanded || m_isBookmarked || m_isIgnored || m_isCurrent;
    m_below.clear();
    for (int i = 0; i < row.childCount(); ++i) {
        RowMarks below;
        below.m_place = i;
        below.take(*row.childRow(i));
        if (!below.isEmpty())
            m_below.push_back(std::move(below));
    }
}

void RowMarks::give(SoTreeViewItem& row) const
{
    for (const RowMarks& below : m_below) {
        if (SoTreeViewItem* child = row.childRow(below.m_place))
            below.give(*child);
    }
    if (m_isExpanded)
        row.setExpanded(true);
    if (m_isBookmarked)
        row.setBookmarked(true);
    if (m_isIgnored)
        row.setIgnored(true);
    if (m_isCurrent)
        row.treeWidget()->setCurrentItem(&row);
}
