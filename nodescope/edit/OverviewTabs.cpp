#include "OverviewTabs.h"

#include <nodescope/panels/SoNodeOverview.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/nodes/SoNode.h>

namespace {

SoNode* asNode(SoFieldContainer* container)
{
    return container && container->isOfType(SoNode::getClassTypeId()) ? static_cast<SoNode*>(container) : nullptr;
}

} // namespace

void OverviewTabs::show(SoTreeViewItem* row, bool addTab)
{
    if (!row && m_treeView)
        row = m_treeView->currentRow();
    if (!row || !m_edition)
        return;
    m_edition->showContainer(row->node(), row->kit(), addTab);
    rememberRow(row);
    highlightRow();
}

void OverviewTabs::show(SoFieldContainer* container)
{
    if (!m_edition)
        return;
    SoTabNodeOverview& overview = m_edition->overview();
    SoTreeViewItem* row = m_treeView ? m_treeView->currentRow() : nullptr;
    const bool isCurrentRow = row && row->node() == container;
    const bool isOtherRow = isCurrentRow && row != rowOf(overview.currentIndex()); // it may name another part
    if (overview.currentPage()->container() != container || isOtherRow) {
        if (!isCurrentRow)
            row = anyRowOf(container);
        overview.setNodeOverview(container, row ? row->kit() : nullptr);
        rememberRow(row);
    }
    if (!isCurrentRow)
        highlightRow();
}

void OverviewTabs::rememberRow(SoTreeViewItem* row)
{
    m_edition->overview().currentPage()->setTreeRow(row ? m_treeView->indexFromItem(row) : QModelIndex());
}

SoTreeViewItem* OverviewTabs::anyRowOf(SoFieldContainer* container) const
{
    const SoNode* const node = asNode(container);
    const QList<SoTreeViewItem*> rows =
        node && m_treeView ? m_treeView->rowRegistry().rows(node) : QList<SoTreeViewItem*>();
    return rows.isEmpty() ? nullptr : rows.first();
}

SoTreeViewItem* OverviewTabs::rowOf(int page) const
{
    const QPersistentModelIndex& index = m_edition->overview().page(page)->treeRow();
    return m_treeView && index.isValid() ? static_cast<SoTreeViewItem*>(m_treeView->itemFromIndex(index)) : nullptr;
}

void OverviewTabs::highlightRow()
{
    if (!m_edition || !m_treeView)
        return;
    const SoTabNodeOverview& overview = m_edition->overview();
    SoTreeViewItem* row = rowOf(overview.currentIndex());
    if (!row)
        row = anyRowOf(overview.currentPage()->container()); // the node may have been given another row
    if (row && row != m_treeView->currentRow())
        m_treeView->showRow(row);
}

void OverviewTabs::close(int index)
{
    if (m_edition)
        m_edition->overview().closeNodeOverview(index);
}

QList<SoTreeViewItem*> OverviewTabs::rows() const
{
    QList<SoTreeViewItem*> rows;
    for (int i = 0; m_edition && i < m_edition->overview().count(); ++i)
        rows.append(rowOf(i));
    return rows;
}

SoNode* OverviewTabs::shownNode() const
{
    return m_edition ? asNode(m_edition->overview().currentPage()->container()) : nullptr;
}
