#include "ReferenceHiding.h"

#include <nodescope/tree/NodeRowRegistry.h>
#include <nodescope/tree/RowList.h>
#include <nodescope/tree/SoTreeViewItem.h>

namespace {

void setDescendantsDisabled(SoTreeViewItem* row, bool isDisabled)
{
    for (int i = 0; i < row->childCount(); ++i)
        row->childRow(i)->setDisabled(isDisabled);
}

void hideRow(SoTreeViewItem* row)
{
    row->setActive(false);
    setDescendantsDisabled(row, true);
    row->setIgnored(true);
}

void showRow(SoTreeViewItem* row)
{
    row->setActive(true);
    row->setIgnored(false);
    setDescendantsDisabled(row, false);
}

} // namespace

template <class Change>
void ReferenceHiding::forEachList(const SoTreeViewItem* row, Change&& change)
{
    for (const RowList* list : m_registry.sharedNodes()) {
        if (!row || list->first()->node() == row->node())
            change(*list);
    }
}

void ReferenceHiding::hide(const SoTreeViewItem* row)
{
    forEachList(row, [](const RowList& list) {
        for (SoTreeViewItem* each = RowList::next(list.first()); each; each = RowList::next(each)) {
            if (each->isActive())
                hideRow(each);
        }
    });
}

void ReferenceHiding::show(const SoTreeViewItem* row)
{
    forEachList(row, [](const RowList& list) {
        for (SoTreeViewItem* each = list.first(); each; each = RowList::next(each)) {
            if (!each->isActive())
                showRow(each);
        }
    });
}

SoTreeViewItem* ReferenceHiding::step(const SoTreeViewItem* row, bool forward) const
{
    const QList<SoTreeViewItem*> rows = m_registry.rows(row->node());
    if (rows.size() < 2)
        return nullptr;
    const int place = rows.indexOf(const_cast<SoTreeViewItem*>(row));
    return rows[(place + (forward ? 1 : rows.size() - 1)) % rows.size()];
}
