#include "ReferenceActions.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <QAction>

ReferenceActions::ReferenceActions(SoNodescopeMainFrame& frame, SoNodescopeTreeView& treeView)
    : m_frame(frame), m_treeView(treeView)
{
    connect(&treeView, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { update(static_cast<SoTreeViewItem*>(item)); });
    connect(&treeView, &SoNodescopeTreeView::referencesChanged, this, [this] { update(m_treeView.currentRow()); });
    update(treeView.currentRow());
}

void ReferenceActions::update(const SoTreeViewItem* row)
{
    const SoNodescopeTreeView::References references =
        row ? m_treeView.references(*row) : SoNodescopeTreeView::References::None;
    m_frame.action(ActionId::ShowAllReferences)->setEnabled(references == SoNodescopeTreeView::References::Hidden);
    for (const ActionId id : {ActionId::HideAllReferences, ActionId::NextReference, ActionId::PreviousReference})
        m_frame.action(id)->setEnabled(references == SoNodescopeTreeView::References::Shown);
}
