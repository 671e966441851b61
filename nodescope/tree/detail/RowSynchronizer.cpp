#include "RowSynchronizer.h"
#include "RowMarks.h"
#include "RowSources.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/nodes/SoWWWInline.h>

#include <algorithm>

namespace {

int childRowCount(const SoTreeViewItem& row)
{
    int count = row.childCount();
    while (count > 0 && row.childRow(count - 1)->fromField())
        --count;
    return count;
}

bool shows(const SoTreeViewItem& row, const std::pair<SoNode*, SoField*>& source)
{
    return row.node() == source.first && row.sourceField() == source.second;
}

} // namespace

void RowSynchronizer::keepMarksOf(const SoNode* node, RowMarks* marks)
{
    m_markedNode = node;
    m_marks = marks;
}

// The child rows of a pending row are made when it is opened.
bool RowSynchronizer::isPending(SoTreeViewItem& row) const
{
    if (row.hasPendingChildren() && !hasRowSources(*row.node()))
        row.setPendingChildren(false);
    return row.hasPendingChildren();
}

void RowSynchronizer::childInserted(SoTreeViewItem& row, SoNode& child, int place)
{
    if (isPending(row))
        return;
    const int missing = childRowSourceCount(*row.node()) - childRowCount(row);
    if (missing == 1 && place >= 0)
        insertRow(row, {&child, nullptr}, place);
    else if (missing != 0)
        synchronize(row);
}

void RowSynchronizer::childRemoved(SoTreeViewItem& row, int place)
{
    if (isPending(row))
        return;
    const int surplus = childRowCount(row) - childRowSourceCount(*row.node());
    if (surplus == 1 && place >= 0)
        removeRows(row, place, 1);
    else if (surplus != 0)
        synchronize(row);
}

void RowSynchronizer::childReplaced(SoTreeViewItem& row, SoNode& child, int place)
{
    if (isPending(row))
        return;
    if (place < 0 || childRowCount(row) != childRowSourceCount(*row.node())) {
        synchronize(row);
        return;
    }
    removeRows(row, place, 1);
    insertRow(row, {&child, nullptr}, place);
}

void RowSynchronizer::reload(SoTreeViewItem& row)
{
    removeRows(row, 0, childRowCount(row));
    if (row.node()->isOfType(SoWWWInline::getClassTypeId()) && childRowSourceCount(*row.node()) == 0)
        static_cast<SoWWWInline*>(row.node())->requestChildrenFromURL();
    synchronize(row);
}

void RowSynchronizer::synchronize(SoTreeViewItem& row)
{
    if (isPending(row))
        return;
    std::vector<Source> sources;
    forEachRowSource(*row.node(), [&](SoNode& node, SoField* field) { sources.emplace_back(&node, field); });
    const int wanted = int(sources.size());
    const int present = row.childCount();
    int same = 0;
    while (same < std::min(wanted, present) && shows(*row.childRow(same), sources[std::size_t(same)]))
        ++same;
    int sameAtEnd = 0;
    while (same + sameAtEnd < std::min(wanted, present) &&
           shows(*row.childRow(present - 1 - sameAtEnd), sources[std::size_t(wanted - 1 - sameAtEnd)]))
        ++sameAtEnd;

    removeRows(row, same, present - same - sameAtEnd);
    if (row.childCount() == 0) {
        m_view.buildChildren(&row);
        return;
    }
    for (int place = same; place < wanted - sameAtEnd; ++place)
        insertRow(row, sources[std::size_t(place)], place);
}

void RowSynchronizer::insertRow(SoTreeViewItem& row, const Source& source, int place)
{
    SoTreeViewItem* made = m_view.createItem(source.first, &row, source.second, place);
    if (source.first == m_markedNode)
        m_marks->give(*made);
}

void RowSynchronizer::removeRows(SoTreeViewItem& row, int first, int count)
{
    if (count == 0)
        return;
    const SoTreeViewItem* below = m_view.currentRow();
    while (below && below->parentRow() != &row)
        below = below->parentRow();
    const int current = below ? below->position() : -1;
    const bool losesCurrent = current >= first && current < first + count;
    for (int place = first; m_marks && place < first + count; ++place) {
        if (row.childRow(place)->node() == m_markedNode && m_marks->isEmpty())
            m_marks->take(*row.childRow(place));
    }
    // The view would make a neighbour current while the rows go, one of which may go as well.
    if (losesCurrent)
        m_view.makeCurrentSilently(&row);
    row.deleteChildren(first, count);
    if (losesCurrent && !m_marks)
        m_view.reselectRow(&row);
}
