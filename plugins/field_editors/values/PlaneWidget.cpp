#include "PlaneWidget.h"

#include "NumberGrid.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QStringList Axes{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")};

} // namespace

PlaneWidget::PlaneWidget(QWidget* parent)
    : ValueWidget(parent), m_normal(new NumberGrid(NumberKind::of<float>(), Axes)),
      m_distance(new NumberGrid(NumberKind::of<float>(), {tr("Distance")})), m_flip(new QToolButton)
{
    m_flip->setText(tr("Flip"));
    m_flip->setToolTip(tr("Turn the normal to the other side"));
    connect(m_flip, &QToolButton::clicked, this, &PlaneWidget::flip);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    for (NumberGrid* grid : {m_normal, m_distance}) {
        include(*grid);
        connect(grid, &NumberGrid::edited, this, &PlaneWidget::takeNumbers);
        rows->addWidget(grid);
    }
    rows->addWidget(m_flip, 0, Qt::AlignLeft);
}

void PlaneWidget::takeNumbers()
{
    const SbVec3f normal = m_normal->vector();
    if (normal.length() == 0)
        return; // the direction follows with another component
    m_value.setValue(SbPlane(normal, float(m_distance->value(0))));
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
    const SbVec3f typed = m_normal->vector();
    const bool isSame = typed.length() > 0 && SbPlane(typed, plane.getDistanceFromOrigin()) == plane;
    showNumbers(isSame ? typed : plane.getNormal());
}

void PlaneWidget::showNumbers(const SbVec3f& normal)
{
    m_normal->setVector(normal);
    m_distance->setValue(0, double(m_value.getValue().getDistanceFromOrigin()));
}

void PlaneWidget::setReadOnly(bool isReadOnly)
{
    m_normal->setReadOnly(isReadOnly);
    m_distance->setReadOnly(isReadOnly);
    m_flip->setEnabled(!isReadOnly);
}
