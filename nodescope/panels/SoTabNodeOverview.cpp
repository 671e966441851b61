#include "SoTabNodeOverview.h"
#include "SoFieldItem.h"
#include "SoNodeOverview.h"
#include "SoNodeOverviewList.h"

#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/NscNodeInfo.h>
#include <vexel/nodes/SoNode.h>

#include <QPixmap>
#include <QSignalBlocker>

namespace {

// Of these columns the width itself is kept; of others, whether they are shown.
constexpr int Last_column_of_fixed_width = 1;
constexpr int Own_sizing = -1;

} // namespace

SoTabNodeOverview::SoTabNodeOverview(QWidget* parent) : QTabWidget(parent)
{
    setObjectName(QStringLiteral("SoTabNodeOverview"));
    setTabsClosable(true);
    addPage();
    connect(this, &QTabWidget::tabCloseRequested, this, &SoTabNodeOverview::tabClose);
    connect(this, &QTabWidget::currentChanged, this, &SoTabNodeOverview::tabNodeOverviewChanged);
}

SoNodeOverview* SoTabNodeOverview::page(int index) const
{
    return static_cast<SoNodeOverview*>(widget(index));
}

SoNodeOverview* SoTabNodeOverview::currentPage() const
{
    return page(currentIndex());
}

SoNodeOverview* SoTabNodeOverview::addPage()
{
    const QSignalBlocker blocker(this); // an empty page tells nothing
    auto* const added = new SoNodeOverview;
    connectPage(*added);
    setCurrentIndex(addTab(added, QString()));
    return added;
}

void SoTabNodeOverview::connectPage(SoNodeOverview& page)
{
    SoNodeOverviewList& list = page.list();
    connect(&list, &QTreeWidget::currentItemChanged, this,
            [this, &page](QTreeWidgetItem* row, QTreeWidgetItem* previousRow) {
                if (&page == currentPage()) // others lose rows when their containers go
                    emit fieldRowChanged(row, previousRow);
            });
    connect(&list, &SoNodescopeList::columnWidthChanged, this, &SoTabNodeOverview::overviewColumnListChanged);
    connect(&page, &SoNodeOverview::nodeNameChanged, this, &SoTabNodeOverview::nodeNameChanged);
    connect(&page, &SoNodeOverview::overrideRequested, this, &SoTabNodeOverview::overrideRequested);
    connect(&page, &SoNodeOverview::watchRequested, this, &SoTabNodeOverview::watchRequested);
    connect(&page, &SoNodeOverview::containerGone, this, [this, &page] { showTitle(page); });
}

void SoTabNodeOverview::showTitle(SoNodeOverview& page)
{
    SoFieldContainer* const container = page.container();
    QPixmap* icon = nullptr;
    if (container && container->isOfType(SoNode::getClassTypeId()))
        icon = NscNodeInfo::pixmap(static_cast<SoNode*>(container));
    const int index = indexOf(&page);
    setTabIcon(index, icon && !icon->isNull() ? QIcon(*icon) : QIcon());
    setTabText(index, container ? container->getTypeId().getName().toQString() : QString());
}

void SoTabNodeOverview::setNodeOverview(SoFieldContainer* container, SoBaseKit* kit)
{
    SoNodeOverview& page = *currentPage();
    {
        // Whoever listens learns of the container before its field.
        const QSignalBlocker blocker(page.list());
        page.setNodeOverview(container, kit);
    }
    showTitle(page);
    emit containerShown(container);
    if (page.list().firstEnabledRow())
        emit fieldRowChanged(page.list().currentItem(), nullptr);
    else
        emit clearFieldEditorEvent();
}

void SoTabNodeOverview::tabNodeOverviewChanged(int index)
{
    if (index < 0)
        return;
    emit currentPageChanged();
    if (page(index)->container())
        emit containerShown(page(index)->container());
    SoNodeOverviewList& list = page(index)->list();
    SoFieldItem* const first = list.firstEnabledRow();
    if (!first) {
        emit clearFieldEditorEvent();
        return;
    }
    const QSignalBlocker blocker(list);
    list.setCurrentItem(first);
    emit fieldRowChanged(first, nullptr);
}

void SoTabNodeOverview::closeNodeOverview(int index)
{
    tabClose(index < 0 ? currentIndex() : index);
}

void SoTabNodeOverview::closeNodeOverview()
{
    closeNodeOverview(-1);
}

void SoTabNodeOverview::tabClose(int index)
{
    if (count() < 2 || !page(index))
        return;
    SoNodeOverview* const closed = page(index);
    removeTab(index);
    delete closed;
}

void SoTabNodeOverview::reset()
{
    {
        const QSignalBlocker blocker(this); // the pages on the way are of no interest
        while (count() > 1)
            closeNodeOverview(count() - 1);
    }
    currentPage()->clear();
    showTitle(*currentPage());
    emit clearFieldEditorEvent();
}

void SoTabNodeOverview::initPreferences()
{
    for (int i = 0; i < count(); ++i)
        page(i)->list().applyPreferences();
}

void SoTabNodeOverview::setPreferences()
{
    initPreferences();
}

void SoTabNodeOverview::updateName(SoNode* node)
{
    for (int i = 0; i < count(); ++i) {
        if (page(i)->container() == node)
            page(i)->updateName();
    }
}

void SoTabNodeOverview::overviewColumnListChanged(int column, int width)
{
    for (int i = 0; i < count(); ++i)
        page(i)->list().takeColumnWidth(column, width);
    int stored = width;
    if (column > Last_column_of_fixed_width)
        stored = width == 0 ? 0 : Own_sizing;
    SoPreferenceStore::getInstance()->writeColumnWidth(SoPreferenceStore::NodeOverviewGroup, column, stored);
}
