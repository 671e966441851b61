#include "DragLabel.h"

#include <QMouseEvent>

DragLabel::DragLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setReadOnly(false);
}

void DragLabel::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    setCursor(isReadOnly ? Qt::ArrowCursor : Qt::SizeHorCursor);
}

void DragLabel::mousePressEvent(QMouseEvent* event)
{
    if (m_isReadOnly || event->button() != Qt::LeftButton)
        return;
    m_start = event->globalX();
    m_isDragged = true;
    emit dragBegun();
}

void DragLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDragged)
        emit dragged(event->globalX() - m_start);
}

void DragLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_isDragged || event->button() != Qt::LeftButton)
        return;
    m_isDragged = false;
    emit dragEnded();
}
