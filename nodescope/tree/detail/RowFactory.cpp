#include "RowFactory.h"
#include "CategoryFilter.h"
#include "RowBuilder.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <algorithm>

void RowFactory::restart()
{
    m_isOnDemand = false;
    emit m_view.statusMessage(QString());
}

RowBuilder RowFactory::builder(SoNode& node)
{
    constexpr int Most_rows = SoNodescopeTreeView::MostRowsAtOnce;
    if (!m_isOnDemand && !RowBuilder::makesAtMost(node, Most_rows)) {
        m_isOnDemand = true;
        emit m_view.statusMessage(
            SoNodescopeTreeView::tr("The graph has more than %L1 rows: rows are made when a row is opened.")
                .arg(Most_rows));
    }
    return RowBuilder(m_isOnDemand ? RowBuilder::Children::OnDemand : RowBuilder::Children::AtOnce);
}

SoTreeViewItem* RowFactory::make(SoNode& node, SoTreeViewItem* parentRow, SoField* sourceField, int position)
{
    SoTreeViewItem* row = builder(node).build(node, sourceField, parentRow);
    row->setIndex(position);
    if (parentRow) {
        int place = position;
        if (position < 0) {
            place = parentRow->childCount();
            while (place > 0 && !parentRow->childRow(place - 1)->isCounted())
                --place;
        }
        parentRow->insertRow(std::min(place, parentRow->childCount()), row);
        if (!parentRow->isActive())
            row->setDisabled(true); // as all below a hidden reference
    } else {
        m_view.insertTopLevelItem(position < 0 ? m_view.topLevelItemCount() : position, row);
        row->setIndex(m_view.indexOfTopLevelItem(row));
        m_view.rowRegistry().enter(row);
    }
    if (m_filter.mask() != Nsc::All_categories)
        m_filter.applyTo(row);
    return row;
}

void RowFactory::makeChildren(SoTreeViewItem& row)
{
    row.deleteChildren(false);
    builder(*row.node()).buildChildren(row);
    row.setPendingChildren(false);
    if (m_filter.mask() != Nsc::All_categories)
        m_filter.applyTo(&row);
}

void RowFactory::expandBelow(SoTreeViewItem& row)
{
    QList<SoTreeViewItem*> rows{&row};
    for (int i = 0; i < rows.size() && rows.size() < SoNodescopeTreeView::MostRowsAtOnce; ++i) {
        if (rows[i]->hasPendingChildren())
            makeChildren(*rows[i]);
        for (int child = 0; child < rows[i]->childCount(); ++child) {
            if (rows[i]->childRow(child)->childCount() > 0 || rows[i]->childRow(child)->hasPendingChildren())
                rows.append(rows[i]->childRow(child));
        }
    }
    for (int i = rows.size() - 1; i >= 0; --i)
        rows[i]->setExpanded(true);
}
