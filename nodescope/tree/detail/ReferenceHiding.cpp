#include "ReferenceHiding.h"

#include <nodescope/tree/NodeRowRegistry.h>
#include <nodescope/tree/RowList.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/nodes/SoNode.h>

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

/** Whether groups and fields hold the node more than once in all. */
bool hasSeveralParents(const SoNode& node)
{
    const AuditorList& auditors = node.getAuditors();
    unsigned places = 0;
    for (std::size_t i = 0; places < 2 && i < auditors.size(); ++i) {
        const SoAuditorType type = auditors.at(i).type;
        if (type == SoAuditorType::Container || type == SoAuditorType::Field)
            places += auditors.countAt(i);
    }
    return places >= 2;
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

QList<SoTreeViewItem*> ReferenceHiding::references(const SoNode& node) const
{
    // Most nodes stand in one place only; that is known without asking for their rows.
    const QList<SoTreeViewItem*> rows = hasSeveralParents(node) ? m_registry.rows(&node) : QList<SoTreeViewItem*>();
    return rows.size() < 2 ? QList<SoTreeViewItem*>() : rows;
}

SoTreeViewItem* ReferenceHiding::step(const SoTreeViewItem* row, bool forward) const
{
    const QList<SoTreeViewItem*> rows = references(*row->node());
    if (rows.isEmpty())
        return nullptr;
    const int place = rows.indexOf(const_cast<SoTreeViewItem*>(row));
    return rows[(place + (forward ? 1 : rows.size() - 1)) % rows.size()];
}
