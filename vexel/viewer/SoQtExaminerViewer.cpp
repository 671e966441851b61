#include <vexel/viewer/SoQtExaminerViewer.h>

#include <vexel/nodes/SoCamera.h>
#include <vexel/viewer/detail/CameraMotion.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Frame_milliseconds = 16;
/** A hand that rested this long before it let go does not want the scene to turn on. */
constexpr int Resting_milliseconds = 60;
/** What is left of the turning speed from one frame to the next, and the angle at which it ends. */
constexpr float Slowing = 0.985f;
constexpr float Slowest = 2e-4f;

// Places count from -1 to 1 across the shorter side.
SbVec2f placeOf(const QPoint& point, const QWidget& widget)
{
    const float half = std::max(std::min(widget.width(), widget.height()), 1) / 2.0f;
    return SbVec2f((float(point.x()) - widget.width() / 2.0f) / half,
                   (widget.height() / 2.0f - float(point.y())) / half);
}

} // namespace

/** What the mouse is doing. */
struct SoQtExaminerViewer::Drag {
    enum Kind { None, Undecided, Orbit, Pan, Dolly };

    Kind kind = None;
    Kind wanted = None;
    QPoint start;
    SbVec2f last;
    SbRotation lastTurn;
    QElapsedTimer sinceTurn;
};

/** The turning that goes on after the drag. */
struct SoQtExaminerViewer::Spin {
    bool isEnabled = true;
    SbRotation turn;
    QTimer timer;
};

SoQtExaminerViewer::SoQtExaminerViewer(QWidget* parent, const char* name, bool buildInsideParent, BuildFlag flag,
                                       Type type)
    : SoQtFullViewer(buildInsideParent ? parent : nullptr, name, flag, type), m_drag(std::make_unique<Drag>()),
      m_spin(std::make_unique<Spin>())
{
    m_spin->timer.setInterval(Frame_milliseconds);
    connect(&m_spin->timer, &QTimer::timeout, this, [this] {
        CameraMotion::orbit(*getCamera(), m_spin->turn);
        m_spin->turn.scaleAngle(Slowing);
        SbVec3f axis;
        float angle = 0;
        m_spin->turn.getValue(axis, angle);
        if (angle < Slowest)
            stopAnimating();
    });
}

SoQtExaminerViewer::~SoQtExaminerViewer() = default;

void SoQtExaminerViewer::setAnimationEnabled(bool on)
{
    m_spin->isEnabled = on;
    if (!on)
        stopAnimating();
}

bool SoQtExaminerViewer::isAnimationEnabled() const
{
    return m_spin->isEnabled;
}

bool SoQtExaminerViewer::isAnimating() const
{
    return m_spin->timer.isActive();
}

void SoQtExaminerViewer::stopAnimating()
{
    m_spin->timer.stop();
}

void SoQtExaminerViewer::leftWheelTurned(float angle)
{
    stopAnimating();
    CameraMotion::orbit(*getCamera(), SbRotation(SbVec3f(1, 0, 0), angle));
}

void SoQtExaminerViewer::bottomWheelTurned(float angle)
{
    stopAnimating();
    CameraMotion::orbit(*getCamera(), SbRotation(SbVec3f(0, 1, 0), angle));
}

void SoQtExaminerViewer::rightWheelTurned(float angle)
{
    stopAnimating();
    CameraMotion::dolly(*getCamera(), std::exp(angle));
}

bool SoQtExaminerViewer::handleWidgetEvent(QEvent& event)
{
    if (SoQtFullViewer::handleWidgetEvent(event))
        return true;
    if (!isViewing())
        return false;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return pressed(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
        return moved(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return released(static_cast<QMouseEvent&>(event));
    case QEvent::Wheel: {
        constexpr float Notch = 120;
        const float notches = float(static_cast<QWheelEvent&>(event).angleDelta().y()) / Notch;
        stopMovingCamera();
        CameraMotion::dolly(*getCamera(), std::pow(0.85f, notches));
        event.accept();
        return true;
    }
    default:
        return false;
    }
}

bool SoQtExaminerViewer::pressed(const QMouseEvent& event)
{
    stopAnimating();
    stopMovingCamera();
    m_drag->wanted = Drag::None;
    if (event.button() == Qt::MiddleButton ||
        (event.button() == Qt::LeftButton && (event.modifiers() & Qt::ShiftModifier)))
        m_drag->wanted = Drag::Pan;
    else if (event.button() == Qt::LeftButton)
        m_drag->wanted = event.modifiers() & Qt::ControlModifier ? Drag::Dolly : Drag::Orbit;
    m_drag->kind = m_drag->wanted == Drag::None ? Drag::None : Drag::Undecided;
    m_drag->start = event.pos();
    m_drag->last = placeOf(event.pos(), *getGLWidget());
    m_drag->lastTurn = SbRotation();
    m_drag->sinceTurn.start();
    return true;
}

bool SoQtExaminerViewer::moved(const QMouseEvent& event)
{
    if (m_drag->kind == Drag::None)
        return false;
    if (m_drag->kind == Drag::Undecided) {
        if ((event.pos() - m_drag->start).manhattanLength() < QApplication::startDragDistance() / 2)
            return true;
        m_drag->kind = m_drag->wanted;
    }
    const SbVec2f place = placeOf(event.pos(), *getGLWidget());
    switch (m_drag->kind) {
    case Drag::Orbit:
        m_drag->lastTurn = CameraMotion::ballRotation(m_drag->last, place);
        m_drag->sinceTurn.restart();
        CameraMotion::orbit(*getCamera(), m_drag->lastTurn);
        break;
    case Drag::Pan:
        CameraMotion::pan(*getCamera(), m_drag->last, place);
        break;
    case Drag::Dolly:
        CameraMotion::dolly(*getCamera(), std::exp(2 * (m_drag->last[1] - place[1])));
        break;
    default:
        break;
    }
    m_drag->last = place;
    return true;
}

bool SoQtExaminerViewer::released(const QMouseEvent& event)
{
    const Drag::Kind kind = m_drag->kind;
    m_drag->kind = Drag::None;
    if (kind == Drag::Undecided && event.button() == Qt::LeftButton) {
        // No drag, so a click: the scene is offered both of its halves.
        QMouseEvent press(QEvent::MouseButtonPress, event.localPos(), event.windowPos(), event.screenPos(),
                          event.button(), event.button(), event.modifiers());
        offerToScene(press);
        offerToScene(event);
    } else if (kind == Drag::Orbit && m_spin->isEnabled && m_drag->sinceTurn.elapsed() < Resting_milliseconds) {
        m_spin->turn = m_drag->lastTurn;
        m_spin->timer.start();
    }
    return true;
}
