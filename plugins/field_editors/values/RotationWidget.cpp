#include "RotationWidget.h"

#include "EulerAngles.h"
#include "NumberBox.h"
#include "NumberGrid.h"
#include "RotationHandle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr float Same = 1e-6f;

enum Unit { Degrees, Radians };

NumberGrid* newGrid(const QStringList& names)
{
    return new NumberGrid(NumberKind::of<float>(), names);
}

} // namespace

RotationWidget::RotationWidget(QWidget* parent)
    : ValueWidget(parent), m_axis(newGrid({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")})),
      m_angle(newGrid({tr("Angle in °"), tr("in rad")})),
      m_euler(newGrid({QStringLiteral("X°"), QStringLiteral("Y°"), QStringLiteral("Z°")})), m_handle(new RotationHandle)
{
    for (NumberGrid* grid : {m_axis, m_angle, m_euler})
        include(*grid);
    m_axis->setStep(0.1);
    m_angle->box(Radians).setStep(0.1);
    connect(m_axis, &NumberGrid::edited, this, &RotationWidget::takeAxis);
    connect(m_angle, &NumberGrid::edited, this, &RotationWidget::takeAngle);
    connect(m_euler, &NumberGrid::edited, this, &RotationWidget::takeEuler);
    connect(m_handle, &RotationHandle::rotated, this, &RotationWidget::take);
    connect(m_handle, &RotationHandle::dragBegun, this, &RotationWidget::gestureBegun);
    connect(m_handle, &RotationHandle::dragEnded, this, &RotationWidget::gestureEnded);
    auto* const left = new QVBoxLayout;
    left->addWidget(new QLabel(tr("Axis and angle")));
    left->addWidget(m_axis);
    left->addWidget(m_angle);
    left->addStretch();
    auto* const right = new QVBoxLayout;
    right->addWidget(new QLabel(tr("About X, then Y, then Z")));
    right->addWidget(m_euler);
    right->addWidget(m_handle, 0, Qt::AlignHCenter);
    right->addStretch();
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
}

void RotationWidget::takeAxis()
{
    const SbVec3f axis = m_axis->vector();
    if (axis.length() > 0) // otherwise the direction follows with another component
        take(SbRotation(axis, float(m_angle->value(Radians))));
}

void RotationWidget::takeAngle(int unit, double number)
{
    const double radians = unit == Degrees ? EulerAngles::toRadians(number) : number;
    m_angle->setValue(Degrees, EulerAngles::toDegrees(radians));
    m_angle->setValue(Radians, radians);
    take(SbRotation(m_axis->vector(), float(radians)));
}

void RotationWidget::takeEuler()
{
    take(EulerAngles::toRotation(m_euler->vector()));
}

void RotationWidget::take(const SbRotation& rotation)
{
    m_value.setValue(rotation);
    showRotation();
    emit edited(m_value);
}

void RotationWidget::showValue(const SoField& value)
{
    m_value.copyFrom(value);
    showRotation();
}

void RotationWidget::showRotation()
{
    const SbRotation& rotation = m_value.getValue();
    // Many numbers stand for the same rotation: those that do already stay as they were typed.
    const SbVec3f typedAxis = m_axis->vector();
    if (typedAxis.length() == 0 || !SbRotation(typedAxis, float(m_angle->value(Radians))).equals(rotation, Same)) {
        SbVec3f axis;
        float angle = 0;
        rotation.getValue(axis, angle);
        m_axis->setVector(axis);
        m_angle->setValue(Degrees, EulerAngles::toDegrees(double(angle)));
        m_angle->setValue(Radians, double(angle));
    }
    if (!EulerAngles::toRotation(m_euler->vector()).equals(rotation, Same))
        m_euler->setVector(EulerAngles::fromRotation(rotation));
    m_handle->setRotation(rotation);
}

void RotationWidget::setReadOnly(bool isReadOnly)
{
    for (NumberGrid* grid : {m_axis, m_angle, m_euler})
        grid->setReadOnly(isReadOnly);
    m_handle->setReadOnly(isReadOnly);
}
