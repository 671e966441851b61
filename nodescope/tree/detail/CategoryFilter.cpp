#include "CategoryFilter.h"

#include <nodescope/tree/NscNodeInfo.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <QTreeWidget>

void CategoryFilter::setMask(int mask)
{
    if (mask == m_mask)
        return;
    m_mask = mask;
    apply();
}

void CategoryFilter::apply()
{
    m_view->setUpdatesEnabled(false);
    for (int i = 0; i < m_view->topLevelItemCount(); ++i)
        applyTo(static_cast<SoTreeViewItem*>(m_view->topLevelItem(i)));
    m_view->setUpdatesEnabled(true);
}

void CategoryFilter::applyTo(SoTreeViewItem* row)
{
    const Nsc::NodeCategory category = NscNodeInfo::category(row->node());
    const bool isHidden = category != Nsc::Unknown && (m_mask & category) == 0;
    // A row that is hidden costs the view memory and every later change time, so only what changes is set.
    if (category != Nsc::Unknown && row->isHidden() != isHidden)
        row->setHidden(isHidden);
    for (int i = 0; i < row->childCount(); ++i)
        applyTo(row->childRow(i));
}
