#include "PlaneWidget.h"

#include "Components.h"
#include "NumberGrid.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int Distance = 3;

} // namespace

PlaneWidget::PlaneWidget(QWidget* parent)
    : ValueWidget(parent), m_grid(new NumberGrid(NumberKind::of<float>(), Components<SbPlane>::names())),
      m_flip(new QToolButton)
{
    include(*m_grid);
    connect(m_grid, &NumberGrid::edited, this, &PlaneWidget::takeNumbers);
    m_flip->setText(tr("Flip"));
    m_flip->setToolTip(tr("Turn the normal to the other side"));
    connect(m_flip, &QToolButton::clicked, this, &PlaneWidget::flip);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_grid);
    rows->addWidget(m_flip, 0, Qt::AlignLeft);
}

void PlaneWidget::takeNumbers()
{
    const SbVec3f normal = m_grid->vector();
    if (normal.length() == 0)
        return; // the direction follows with another component
    m_value.setValue(SbPlane(normal, float(m_grid->value(Distance))));
    emit edited(m_value);
}

void PlaneWidget::flip()
{
    const SbPlane& plane = m_value.getValue();
    m_value.setValue(SbPlane(plane.getNormal() * -1.0f, -plane.getDistanceFromOrigin()));
    showNumbers(m_value.getValue().getNormal());
    emit edited(m_value);
}

void PlaneWidget::showValue(const SoField& value)
{
    m_value.copyFrom(value);
    const SbPlane& plane = m_value.getValue();
    // A normal that was typed in another length stays as it was typed.
    const SbVec3f typed = m_grid->vector();
    const bool isSame = typed.length() > 0 && SbPlane(typed, plane.getDistanceFromOrigin()) == plane;
    showNumbers(isSame ? typed : plane.getNormal());
}

void PlaneWidget::showNumbers(const SbVec3f& normal)
{
    m_grid->setVector(normal);
    m_grid->setValue(Distance, double(m_value.getValue().getDistanceFromOrigin()));
}

void PlaneWidget::setReadOnly(bool isReadOnly)
{
    m_grid->setReadOnly(isReadOnly);
    m_flip->setEnabled(!isReadOnly);
}
