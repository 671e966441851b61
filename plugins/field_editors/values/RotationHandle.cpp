#include "RotationHandle.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double Margin = 10;
constexpr double Axis_length = 0.78; ///< in radii of the ball

struct Axis {
    SbVec3f direction;
    QColor color;
    const char* name;
};

const std::array<Axis, 3> Axes{Axis{{1, 0, 0}, QColor(220, 80, 72), "X"}, Axis{{0, 1, 0}, QColor(47, 158, 91), "Y"},
                               Axis{{0, 0, 1}, QColor(43, 138, 214), "Z"}};

} // namespace

RotationHandle::RotationHandle(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setToolTip(tr("Drag to rotate"));
    setReadOnly(false);
}

void RotationHandle::setRotation(const SbRotation& rotation)
{
    m_rotation = rotation;
    update();
}

void RotationHandle::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    setCursor(isReadOnly ? Qt::ArrowCursor : Qt::OpenHandCursor);
}

double RotationHandle::radius() const
{
    return std::min(width(), height()) / 2.0 - Margin;
}

/** The point of the ball under a place of the widget; beside it that of its edge. */
SbVec3f RotationHandle::onBall(const QPoint& place) const
{
    const double x = (place.x() - width() / 2.0) / radius();
    const double y = (height() / 2.0 - place.y()) / radius();
    const double square = x * x + y * y;
    SbVec3f point(float(x), float(y), float(square < 1 ? std::sqrt(1 - square) : 0));
    point.normalize();
    return point;
}

void RotationHandle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double size = radius();
    QRadialGradient shade(-size / 3, -size / 3, size * 1.6);
    shade.setColorAt(0, palette().color(QPalette::Light));
    shade.setColorAt(1, palette().color(QPalette::Mid));
    painter.setBrush(shade);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawEllipse(QPointF(), size, size);

    // Those that point at the viewer are drawn last.
    std::array<std::pair<SbVec3f, const Axis*>, 3> turned;
    for (std::size_t i = 0; i < Axes.size(); ++i) {
        turned[i].second = &Axes[i];
        m_rotation.multVec(Axes[i].direction, turned[i].first);
    }
    std::sort(turned.begin(), turned.end(), [](const auto& a, const auto& b) { return a.first[2] < b.first[2]; });
    for (const auto& [direction, axis] : turned) {
        const QPointF tip = QPointF(double(direction[0]), -double(direction[1])) * size * Axis_length;
        QColor color = axis->color;
        color.setAlphaF(direction[2] < 0 ? 0.45 : 1);
        painter.setPen(QPen(color, 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(), tip);
        const QPointF middle = tip * 1.15;
        painter.drawText(QRectF(middle - QPointF(10, 10), QSizeF(20, 20)), Qt::AlignCenter,
                         QString::fromLatin1(axis->name));
    }
}

void RotationHandle::mousePressEvent(QMouseEvent* event)
{
    if (m_isReadOnly || event->button() != Qt::LeftButton)
        return;
    m_isDragged = true;
    m_last = onBall(event->pos());
    setCursor(Qt::ClosedHandCursor);
    emit dragBegun();
}

void RotationHandle::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isDragged)
        return;
    const SbVec3f point = onBall(event->pos());
    m_rotation *= SbRotation(m_last, point);
    m_last = point;
    update();
    emit rotated(m_rotation);
}

void RotationHandle::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_isDragged || event->button() != Qt::LeftButton)
        return;
    m_isDragged = false;
    setReadOnly(m_isReadOnly);
    emit dragEnded();
}
