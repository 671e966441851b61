#include <vexel/viewer/detail/ThumbWheel.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int Thickness = 18;
constexpr int Length = 96;
constexpr int Ribs = 24;
constexpr float Pi = 3.14159265f;
constexpr float Key_step = Pi / 36;

} // namespace

ThumbWheel::ThumbWheel(Qt::Orientation orientation, const QString& name, QWidget* parent)
    : QWidget(parent), m_orientation(orientation)
{
    setToolTip(name);
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setCursor(orientation == Qt::Horizontal ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    setFixedSize(ThumbWheel::sizeHint());
}

QSize ThumbWheel::sizeHint() const
{
    return m_orientation == Qt::Horizontal ? QSize(Length, Thickness) : QSize(Thickness, Length);
}

int ThumbWheel::length() const
{
    return m_orientation == Qt::Horizontal ? width() : height();
}

void ThumbWheel::turn(float angle)
{
    m_angle = std::fmod(m_angle + angle, 2 * Pi);
    update();
    emit turned(angle);
}

void ThumbWheel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    const QRectF frame = QRectF(rect()).adjusted(0.5, 2.5, -0.5, -2.5);
    const QRectF body = isHorizontal ? frame : QRectF(rect()).adjusted(2.5, 0.5, -2.5, -0.5);
    QLinearGradient shade(body.topLeft(), isHorizontal ? body.topRight() : body.bottomLeft());
    const QColor base = palette().color(QPalette::Button);
    shade.setColorAt(0, base.darker(150));
    shade.setColorAt(0.5, base.lighter(112));
    shade.setColorAt(1, base.darker(150));
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Window).darker(160));
    painter.setBrush(shade);
    painter.drawRoundedRect(body, 4, 4);

    // Ribs on the front half of the wheel: close together at its edges, as they are seen.
    QColor rib = palette().color(QPalette::ButtonText);
    rib.setAlpha(90);
    painter.setPen(rib);
    for (int i = 0; i < Ribs; ++i) {
        const float angle = std::remainder(m_angle + 2 * Pi * float(i) / Ribs, 2 * Pi);
        if (std::fabs(angle) > Pi / 2)
            continue;
        const double place = (1 + std::sin(angle)) / 2;
        if (isHorizontal) {
            const double x = body.left() + place * body.width();
            painter.drawLine(QPointF(x, body.top() + 2), QPointF(x, body.bottom() - 2));
        } else {
            const double y = body.top() + place * body.height();
            painter.drawLine(QPointF(body.left() + 2, y), QPointF(body.right() - 2, y));
        }
    }
}

void ThumbWheel::mousePressEvent(QMouseEvent* event)
{
    m_last = event->pos();
}

void ThumbWheel::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const QPoint moved = event->pos() - m_last;
    m_last = event->pos();
    const int pixels = m_orientation == Qt::Horizontal ? moved.x() : moved.y();
    turn(Pi * float(pixels) / float(length()));
}

void ThumbWheel::wheelEvent(QWheelEvent* event)
{
    turn(-Pi / 18 * float(event->angleDelta().y()) / 120);
    event->accept();
}

void ThumbWheel::keyPressEvent(QKeyEvent* event)
{
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    if (event->key() == (isHorizontal ? Qt::Key_Right : Qt::Key_Down))
        turn(Key_step);
    else if (event->key() == (isHorizontal ? Qt::Key_Left : Qt::Key_Up))
        turn(-Key_step);
    else
        QWidget::keyPressEvent(event);
}
