#include "RowDrag.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/nodes/SoNode.h>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QPainter>

namespace {

const QString Marker = QStringLiteral("Nodescope/Drop");
constexpr int Indicator_width = 2;

} // namespace

void RowDrag::press(const QPoint& place)
{
    m_pressPlace = place;
    m_pressed = m_view.indexAt(place);
    m_isArmed = m_pressed.isValid() && rowAt(m_pressed) != m_view.topLevelItem(0);
}

void RowDrag::move(const QPoint& place)
{
    if (!m_isArmed || (place - m_pressPlace).manhattanLength() < QApplication::startDragDistance())
        return;
    m_isArmed = false;
    start();
}

void RowDrag::start()
{
    auto* drag = new QDrag(&m_view); // which deletes itself
    auto* data = new QMimeData;
    data->setText(Marker);
    drag->setMimeData(data);
    drag->setPixmap(QPixmap(QStringLiteral(":/Nodescope_icons/Icons/drag.png")));
    drag->exec(Qt::MoveAction);
    // The release of the key went to the drag; a key that is still held tells of itself again.
    m_isSpaceHeld = false;
    leave();
}

SoTreeViewItem* RowDrag::rowAt(const QPersistentModelIndex& index)
{
    // The model of a tree of items keeps the item in its index.
    return index.isValid() ? static_cast<SoTreeViewItem*>(static_cast<QTreeWidgetItem*>(index.internalPointer()))
                           : nullptr;
}

SoTreeViewItem* RowDrag::draggedRow(const QMimeData& data) const
{
    return data.hasText() && data.text() == Marker ? rowAt(m_pressed) : nullptr;
}

void RowDrag::hover(const QPoint& place)
{
    m_hovered = m_view.indexAt(place);
    m_view.viewport()->update();
}

void RowDrag::leave()
{
    m_hovered = QModelIndex();
    m_view.viewport()->update();
}

void RowDrag::drop(const QPoint& place, const QMimeData& data)
{
    SoTreeViewItem* const row = draggedRow(data);
    auto* const target = static_cast<SoTreeViewItem*>(m_view.itemAt(place));
    m_pressed = QModelIndex();
    leave();
    if (row && target && target != row)
        emit m_view.moveRequested(row, target, m_isSpaceHeld);
}

void RowDrag::paintIndicator(QPainter& painter) const
{
    const SoTreeViewItem* const target = rowAt(m_hovered);
    if (!target || target == rowAt(m_pressed))
        return;
    const bool takesChildren = target->node()->getChildren();
    if (m_isSpaceHeld && (!takesChildren || !target->parentRow()))
        return; // nothing will be moved
    QRect place = m_view.visualItemRect(target);
    place.setRight(m_view.viewport()->width() - Indicator_width);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_view.palette().color(QPalette::Highlight), Indicator_width));
    if (m_isSpaceHeld || !takesChildren)
        painter.drawLine(place.bottomLeft(), place.bottomRight());
    else
        painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), 3, 3);
}
