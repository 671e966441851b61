#include "SoNodescopeEdition.h"
#include "SoFieldItem.h"
#include "SoFieldWatch.h"
#include "SoNodeOverview.h"
#include "SoNodeOverviewList.h"
#include "SoTabNodeOverview.h"
#include "detail/FieldValueText.h"

#include <QDockWidget>
#include <QSignalBlocker>

namespace {

QDockWidget* dockAround(QWidget* widget)
{
    while (widget && !qobject_cast<QDockWidget*>(widget))
        widget = widget->parentWidget();
    return qobject_cast<QDockWidget*>(widget);
}

} // namespace

SoNodescopeEdition::SoNodescopeEdition(QObject* parent, QDockWidget* overviewDock, QDockWidget* watchDock)
    : QObject(parent), m_overviewDock(overviewDock), m_watchDock(watchDock), m_overview(new SoTabNodeOverview),
      m_fieldWatch(new SoFieldWatch(nullptr, QStringLiteral("m_fieldWatch")))
{
    m_overviewDock->setWidget(m_overview);
    m_watchDock->setWidget(m_fieldWatch);
    connect(m_overview, &SoTabNodeOverview::fieldRowChanged, this, &SoNodescopeEdition::setField);
    connect(m_overview, &SoTabNodeOverview::watchRequested, this, &SoNodescopeEdition::addFieldWatch);
    connect(m_overview, &SoTabNodeOverview::clearFieldEditorEvent, this, [this] { setField(nullptr); });
}

void SoNodescopeEdition::showContainer(SoFieldContainer* container, SoBaseKit* kit, bool addTab)
{
    m_overviewDock->show();
    m_watchDock->show();
    if (addTab)
        m_overview->addPage();
    m_overview->setNodeOverview(container, kit);
}

void SoNodescopeEdition::clear()
{
    m_fieldWatch->clearEntries();
    m_overview->reset();
}

void SoNodescopeEdition::setField(QTreeWidgetItem* row, QTreeWidgetItem*)
{
    if (!row) {
        emit fieldSelected(nullptr);
        return;
    }
    if (QDockWidget* const dock = dockAround(row->treeWidget()))
        dock->setEnabled(true);
    emit fieldSelected(&static_cast<SoFieldItem*>(row)->field());
}

void SoNodescopeEdition::followField(SoField* field)
{
    SoNodeOverviewList& list = m_overview->currentPage()->list();
    SoFieldItem* const row = field ? list.findRow(field) : nullptr;
    if (!row || row == list.currentRow())
        return;
    const QSignalBlocker blocker(list);
    list.setCurrentItem(row);
}

void SoNodescopeEdition::addFieldWatch()
{
    SoFieldItem* const row = m_overview->currentPage()->list().currentRow();
    if (row && !FieldValueText::holdsNodes(row->field()))
        emit fieldWatchRequested(row);
}
