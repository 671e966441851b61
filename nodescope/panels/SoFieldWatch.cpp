#include "SoFieldWatch.h"
#include "SoFieldItem.h"
#include "detail/FieldValueText.h"

#include <nodescope/preferences/SoPreferenceStore.h>
#include <vexel/nodes/SoNode.h>

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>

namespace {

constexpr int Lowest_height = 60; // pixels: the header and a row

SoFieldItem* draggedRow(const QDropEvent& event, const SoFieldWatch& watch)
{
    auto* const list = qobject_cast<SoNodescopeList*>(event.source());
    return list && list != &watch ? list->currentRow() : nullptr;
}

} // namespace

SoFieldWatch::SoFieldWatch(QWidget* parent, const QString& name) : SoNodescopeList(parent)
{
    setObjectName(name);
    setAccessibleName(tr("Watched fields"));
    setMinimumHeight(Lowest_height);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAcceptDrops(true);
    const QString group = QLatin1String(SoPreferenceStore::FieldWatchGroup);
    restoreColumnWidths(group);
    initPreferences();
    connect(this, &SoFieldWatch::itemSelectionChanged, this, &SoFieldWatch::fieldSelectionChanged);
    connect(this, &SoFieldWatch::itemDoubleClicked, this, &SoFieldWatch::overviewRequested);
    connect(this, &SoFieldWatch::customContextMenuRequested, this, &SoFieldWatch::showContextMenu);
    connect(this, &SoFieldWatch::columnWidthChanged, this, [group](int column, int width) {
        SoPreferenceStore::getInstance()->writeColumnWidth(group, column - 1, width); // as they are restored
    });
}

SoFieldItem* SoFieldWatch::addEntry(const SoFieldItem& row)
{
    if (FieldValueText::holdsNodes(row.field()) || findRow(&row.field()))
        return nullptr;
    auto* const entry = new SoFieldItem(row);
    addRows({entry});
    return entry;
}

void SoFieldWatch::clearEntries()
{
    clear();
    emit listCleared();
}

void SoFieldWatch::nodeNameChanged(const SoNode* node)
{
    const QString name = node->getName().toQString();
    for (int i = 0; i < topLevelItemCount(); ++i)
        row(i)->setText(SoFieldItem::NodeNameColumn, name);
}

void SoFieldWatch::initPreferences()
{
    const DisplayElementMap elements =
        SoPreferenceStore::getInstance()->loadElements(SoPreferenceStore::FieldWatchGroup);
    setHighlighting(elements["Default Value"], elements["Changed Value"]);
}

void SoFieldWatch::setPreferences()
{
    initPreferences();
}

void SoFieldWatch::fieldSelectionChanged()
{
    if (currentItem())
        emit entrySelected(currentItem());
}

void SoFieldWatch::showContextMenu(const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport()->mapToGlobal(place));
    emit contextMenuRequested(&event);
}

void SoFieldWatch::focusInEvent(QFocusEvent* event)
{
    SoNodescopeList::focusInEvent(event);
    emit focusReceived();
}

void SoFieldWatch::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentItem())
        emit overviewRequested(currentItem());
    else
        SoNodescopeList::keyPressEvent(event);
}

void SoFieldWatch::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && currentItem()) {
        emit deleteRequested(currentItem());
        event->accept();
    }
    SoNodescopeList::keyReleaseEvent(event);
}

void SoFieldWatch::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(draggedRow(*event, *this));
}

void SoFieldWatch::dragMoveEvent(QDragMoveEvent* event)
{
    event->setAccepted(draggedRow(*event, *this));
}

void SoFieldWatch::dropEvent(QDropEvent* event)
{
    if (SoFieldItem* const row = draggedRow(*event, *this)) {
        event->setDropAction(Qt::CopyAction); // a move would take the row from the other list
        event->accept();
        emit rowDropped(row, viewport()->mapToGlobal(event->pos()));
    }
}
