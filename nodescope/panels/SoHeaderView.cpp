#include "SoHeaderView.h"

#include <QMouseEvent>

SoHeaderView::SoHeaderView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(false);
    setSectionsClickable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QHeaderView::sectionResized, this, &SoHeaderView::sectionChanged);
}

void SoHeaderView::mousePressEvent(QMouseEvent* event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    QHeaderView::mousePressEvent(event);
}

void SoHeaderView::mouseReleaseEvent(QMouseEvent* event)
{
    m_isPressed = false;
    if (event->button() == Qt::RightButton)
        emit rightClicked(event->globalPos());
    QHeaderView::mouseReleaseEvent(event);
}

void SoHeaderView::sectionChanged(int column, int, int width)
{
    const bool isStretched = stretchLastSection() && column == count() - 1;
    if (m_isPressed && !isStretched)
        emit columnDragged(column, width);
}
