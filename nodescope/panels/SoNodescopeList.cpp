#include "SoNodescopeList.h"
#include "SoFieldItem.h"
#include "SoHeaderView.h"
#include "detail/ListColumns.h"

#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/RowDelegate.h>
#include <vexel/base/SoPreferences.h>

#include <QMenu>
#include <QPointer>

namespace {

constexpr int Refresh_delay = 40; // milliseconds; the eye does not follow values that change faster
constexpr int Icon_size = 16;
constexpr int Room_beside_header_text = 10;

QString styleSheetText()
{
    return QStringLiteral(R"(
QTreeView { show-decoration-selected: 0; }
QTreeView::item { border: none; height: 24px; }
QTreeView::item:hover, QTreeView::branch:hover {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #e7effd, stop: 1 #cbdaf1);
}
QTreeView::item:selected:active, QTreeView::branch:selected:active {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #6ea1f1, stop: 1 #567dbc);
}
QTreeView::item:selected:!active, QTreeView::branch:selected:!active {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #6b9be8, stop: 1 #577fbf);
}
QTreeView::branch { border-image: none; border: none; }
)");
}

QIcon icon(const char* file)
{
    return QIcon(QStringLiteral(":/Nodescope_icons/Icons/") + file);
}

} // namespace

SoNodescopeList::SoNodescopeList(QWidget* parent)
    : QTreeWidget(parent), m_ignoredIcon(icon(List_columns[SoFieldItem::IgnoredColumn].icon)),
      m_connectedIcon(icon(List_columns[SoFieldItem::ConnectedColumn].icon))
{
    auto* const headerView = new SoHeaderView(this);
    setHeader(headerView);
    connect(headerView, &SoHeaderView::rightClicked, this, &SoNodescopeList::headerRightClicked);
    connect(headerView, &SoHeaderView::columnDragged, this, &SoNodescopeList::columnWidthChanged);
    setUpColumns();
    setStyleSheet(styleSheetText());
    setItemDelegate(new RowDelegate(this));
    setIconSize(QSize(Icon_size, Icon_size));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(SingleSelection);
    header()->setSortIndicator(SoFieldItem::HiddenColumn, Qt::AscendingOrder);
    setSortingEnabled(true);
    setHighlighting({font(), Qt::black}, {font(), Qt::red});
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(Refresh_delay);
    connect(&m_refreshTimer, &QTimer::timeout, this, &SoNodescopeList::refreshChangedRows);
}

bool SoNodescopeList::showsNetNames()
{
    return SoPreferences::getBool("VXRU_LAUNCH_NODESCOPE", false) ||
           SoPreferences::getBool("ART_LAUNCH_NODESCOPE", false);
}

void SoNodescopeList::setUpColumns()
{
    setColumnCount(showsNetNames() ? List_column_count : List_column_count - 1);
    header()->setMinimumSectionSize(0);
    for (int i = 0; i < columnCount(); ++i) {
        const ListColumn& column = List_columns[i];
        headerItem()->setText(i, *column.headerText ? tr(column.headerText) : QString());
        if (column.icon)
            headerItem()->setIcon(i, icon(column.icon));
        if (column.toolTip)
            headerItem()->setToolTip(i, tr(column.toolTip));
        const int characterWidth = header()->fontMetrics().averageCharWidth();
        header()->resizeSection(i, column.characters ? column.characters * characterWidth : column.width);
    }
    setColumnHidden(SoFieldItem::HiddenColumn, true);
}

SoFieldItem* SoNodescopeList::row(int i) const
{
    return static_cast<SoFieldItem*>(topLevelItem(i));
}

SoFieldItem* SoNodescopeList::currentRow() const
{
    return static_cast<SoFieldItem*>(currentItem());
}

SoFieldItem* SoNodescopeList::findRow(const SoField* field) const
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (&row(i)->field() == field)
            return row(i);
    }
    return nullptr;
}

SoFieldItem* SoNodescopeList::firstEnabledRow() const
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (!row(i)->isDisabled() && !row(i)->isHidden())
            return row(i);
    }
    return nullptr;
}

void SoNodescopeList::addRows(const QList<QTreeWidgetItem*>& rows)
{
    addTopLevelItems(rows);
    for (QTreeWidgetItem* const added : rows)
        applyFilters(static_cast<SoFieldItem&>(*added));
}

void SoNodescopeList::removeRow(SoFieldItem* row)
{
    if (row == currentItem())
        setCurrentItem(nullptr); // else a neighbour that nobody chose would become current
    delete row;
}

void SoNodescopeList::removeRowsOf(const SoFieldContainer& container)
{
    if (currentRow() && &currentRow()->container() == &container)
        setCurrentItem(nullptr);
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        if (&row(i)->container() == &container)
            removeRow(row(i));
    }
    emit containerGone();
}

void SoNodescopeList::setShowPartRows(bool on)
{
    m_showsPartRows = on;
    applyFilters();
}

void SoNodescopeList::showChangedValues(bool on)
{
    m_showsChangedOnly = on;
    applyFilters();
}

void SoNodescopeList::applyFilters()
{
    for (int i = 0; i < topLevelItemCount(); ++i)
        applyFilters(*row(i));
}

void SoNodescopeList::applyFilters(SoFieldItem& row)
{
    const bool isHidden = (row.isPart() && !m_showsPartRows) || (m_showsChangedOnly && !row.isChanged());
    if (isHidden != row.isHidden())
        row.setHidden(isHidden);
}

void SoNodescopeList::setHighlighting(const DisplayElement& defaultValue, const DisplayElement& changedValue)
{
    m_defaultValue = defaultValue;
    m_changedValue = changedValue;
    viewport()->update();
}

void SoNodescopeList::refreshRow(SoFieldItem* row)
{
    row->refresh();
    applyFilters(*row);
    const QRect place = visualItemRect(row);
    viewport()->update(0, place.top(), viewport()->width(), place.height());
}

void SoNodescopeList::refreshLater()
{
    if (isVisible() && !m_refreshTimer.isActive())
        m_refreshTimer.start();
}

void SoNodescopeList::refreshChangedRows()
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (row(i)->needsRefresh())
            refreshRow(row(i));
    }
}

void SoNodescopeList::showEvent(QShowEvent* event)
{
    refreshChangedRows();
    QTreeWidget::showEvent(event);
}

void SoNodescopeList::setColumnWidth(int column, int width)
{
    const int before = columnWidth(column);
    takeColumnWidth(column, width);
    if (columnWidth(column) != before)
        emit columnWidthChanged(column, columnWidth(column));
}

void SoNodescopeList::takeColumnWidth(int column, int width)
{
    if (column == columnCount() - 1)
        header()->setStretchLastSection(false); // which would give it another width at once
    header()->setSectionResizeMode(column, QHeaderView::Interactive);
    header()->resizeSection(column, width);
}

void SoNodescopeList::restoreColumnWidths(const QString& group)
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    for (int i = 0; i + 1 < columnCount(); ++i) {
        const int width = store.readColumnWidth(group, i);
        if (width >= 0)
            takeColumnWidth(i + 1, width);
    }
}

void SoNodescopeList::toggleHeaderColumnVisibility(QAction* toggledAction)
{
    int column = 0;
    while (column < columnCount() &&
           !(List_columns[column].menuText && tr(List_columns[column].menuText) == toggledAction->text()))
        ++column;
    if (column == columnCount())
        return;
    if (columnWidth(column) != 0) {
        setColumnWidth(column, 0);
        return;
    }
    const QString title = headerItem()->text(column);
    const int titleWidth = header()->fontMetrics().horizontalAdvance(title) + Room_beside_header_text;
    setColumnWidth(column, column == SoFieldItem::IgnoredColumn ? List_columns[column].width : titleWidth);
}

void SoNodescopeList::headerRightClicked(QPoint place)
{
    const QPointer<QMenu> menu = new QMenu(this);
    for (int i = SoFieldItem::IgnoredColumn; i < columnCount(); ++i) {
        QAction* const action = menu->addAction(tr(List_columns[i].menuText));
        action->setCheckable(true);
        action->setChecked(columnWidth(i) != 0);
    }
    connect(menu, &QMenu::triggered, this, &SoNodescopeList::toggleHeaderColumnVisibility);
    menu->exec(place);
    delete menu; // unless the inspection was stopped meanwhile, and the menu went with the window
}
