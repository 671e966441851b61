#include "RowSearch.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

SoTreeViewItem* RowSearch::find()
{
    if (m_view.topLevelItemCount() == 0 || !m_matcher.canMatch())
        return nullptr;
    if (SoTreeViewItem* current = m_view.currentRow())
        standOn(current);
    else
        standOnFirst();
    const SoTreeViewItem* const start = m_row;
    do {
        if (!step())
            standOnFirst();
        if (m_matcher.matches(*m_row))
            return m_row;
    } while (m_row != start);
    return nullptr;
}

void RowSearch::standOn(SoTreeViewItem* row)
{
    m_row = row;
    m_places.clear();
    for (const SoTreeViewItem* each : row->ancestorPath())
        m_places.push_back(each->position());
}

void RowSearch::standOnFirst()
{
    const int place = m_isBackward ? m_view.topLevelItemCount() - 1 : 0;
    m_row = static_cast<SoTreeViewItem*>(m_view.topLevelItem(place));
    m_places.assign(1, place);
    if (m_isBackward)
        descendToLast();
}

bool RowSearch::step()
{
    return m_isBackward ? stepBackward() : stepForward();
}

bool RowSearch::stepForward()
{
    if (numChildrenOfInterest(*m_row) > 0) {
        m_row = m_row->childRow(0);
        m_places.push_back(0);
        return true;
    }
    for (; m_row; m_row = m_row->parentRow(), m_places.pop_back()) {
        if (SoTreeViewItem* next = sibling(m_places.back() + 1)) {
            m_row = next;
            ++m_places.back();
            return true;
        }
    }
    return false;
}

bool RowSearch::stepBackward()
{
    if (m_places.back() == 0) {
        m_row = m_row->parentRow();
        m_places.pop_back();
        return m_row;
    }
    m_row = sibling(--m_places.back());
    descendToLast();
    return true;
}

void RowSearch::descendToLast()
{
    for (int count = numChildrenOfInterest(*m_row); count > 0; count = numChildrenOfInterest(*m_row)) {
        m_row = m_row->childRow(count - 1);
        m_places.push_back(count - 1);
    }
}

SoTreeViewItem* RowSearch::sibling(int place) const
{
    if (const SoTreeViewItem* above = m_row->parentRow())
        return above->childRow(place);
    return static_cast<SoTreeViewItem*>(m_view.topLevelItem(place));
}

int RowSearch::numChildrenOfInterest(SoTreeViewItem& row)
{
    if (row.hasPendingChildren() && m_graph.findsBelow(*row.node(), row.kit()))
        m_view.makePendingChildren(&row);
    return row.childCount();
}
