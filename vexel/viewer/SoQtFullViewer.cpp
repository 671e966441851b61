#include <vexel/viewer/SoQtFullViewer.h>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoSceneManager.h>
#include <vexel/viewer/detail/CameraMotion.h>
#include <vexel/viewer/detail/CameraState.h>
#include <vexel/viewer/detail/ViewerDecoration.h>
#include <vexel/viewer/detail/ViewerScene.h>

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>

namespace {

constexpr int Flight_milliseconds = 400;
constexpr int Frame_milliseconds = 16;

} // namespace

/** A camera on its way to a new place. */
struct SoQtFullViewer::CameraFlight {
    CameraState from;
    CameraState to;
    QElapsedTimer clock;
    QTimer timer;
};

SoQtFullViewer::SoQtFullViewer(QWidget* parent, const char* name, BuildFlag flag, Type type)
    : SoQtRenderArea(parent, name), m_scene(std::make_unique<ViewerScene>()), m_home(std::make_unique<CameraState>()),
      m_flight(std::make_unique<CameraFlight>()), m_hasMenu((flag & BUILD_POPUP) != 0), m_isEditor(type == EDITOR)
{
    SoQtRenderArea::setSceneGraph(m_scene->root());
    getSceneManager()->setPrepareCallback(
        [](void* viewer, SoSceneManager* manager) {
            static_cast<SoQtFullViewer*>(viewer)->m_scene->prepareFrame(manager->getViewportRegion());
        },
        this);
    m_decoration = new ViewerDecoration(this, getGLWidget(), parent);
    m_decoration->setShown((flag & BUILD_DECORATION) != 0);
    connect(m_decoration, &QObject::destroyed, this, [this] { m_decoration = nullptr; });
    connect(m_decoration, &ViewerDecoration::leftTurned, this, [this](float angle) { leftWheelTurned(angle); });
    connect(m_decoration, &ViewerDecoration::bottomTurned, this, [this](float angle) { bottomWheelTurned(angle); });
    connect(m_decoration, &ViewerDecoration::rightTurned, this, [this](float angle) { rightWheelTurned(angle); });
    m_flight->timer.setInterval(Frame_milliseconds);
    connect(&m_flight->timer, &QTimer::timeout, this, [this] {
        const float passed = float(m_flight->clock.elapsed()) / Flight_milliseconds;
        const float t = passed >= 1 ? 1 : passed * passed * (3 - 2 * passed);
        CameraState::between(m_flight->from, m_flight->to, t).applyTo(*getCamera());
        if (passed >= 1)
            m_flight->timer.stop();
    });
    updateCursor();
}

SoQtFullViewer::~SoQtFullViewer()
{
    SoQtRenderArea::setSceneGraph(nullptr);
    delete m_decoration;
}

QWidget* SoQtFullViewer::getWidget() const
{
    return m_decoration;
}

void SoQtFullViewer::setSceneGraph(SoNode* root)
{
    stopMovingCamera();
    m_scene->setScene(root);
    const bool hadCamera = !m_scene->usesOwnCamera();
    if (!hadCamera && m_isEditor)
        m_scene->addCameraToScene();
    if (!hadCamera) // a camera of the scene is part of what was made, and stays as it is
        viewAll();
    saveHomePosition();
    emit modeChanged();
}

SoNode* SoQtFullViewer::getSceneGraph() const
{
    return m_scene->scene();
}

SoCamera* SoQtFullViewer::getCamera() const
{
    return m_scene->camera();
}

void SoQtFullViewer::setViewing(bool on)
{
    m_isViewing = on;
    m_isSeeking = false;
    updateCursor();
    emit modeChanged();
}

void SoQtFullViewer::setSeekMode(bool on)
{
    m_isSeeking = on;
    updateCursor();
    emit modeChanged();
}

void SoQtFullViewer::updateCursor()
{
    const Qt::CursorShape shape = m_isSeeking ? Qt::CrossCursor : (m_isViewing ? Qt::OpenHandCursor : Qt::ArrowCursor);
    if (QWidget* widget = getGLWidget())
        widget->setCursor(shape);
}

void SoQtFullViewer::viewAll()
{
    stopMovingCamera();
    if (m_scene->scene())
        getCamera()->viewAll(m_scene->scene(), getViewportRegion());
}

void SoQtFullViewer::saveHomePosition()
{
    *m_home = CameraState(*getCamera());
}

void SoQtFullViewer::resetToHomePosition()
{
    moveCameraTo(*m_home);
}

void SoQtFullViewer::moveCameraTo(const CameraState& state)
{
    m_flight->from = CameraState(*getCamera());
    m_flight->to = state;
    m_flight->clock.start();
    m_flight->timer.start();
}

void SoQtFullViewer::stopMovingCamera()
{
    m_flight->timer.stop();
}

void SoQtFullViewer::setHeadlight(bool on)
{
    m_scene->setHeadlight(on);
    emit modeChanged();
}

bool SoQtFullViewer::isHeadlight() const
{
    return m_scene->hasHeadlight();
}

void SoQtFullViewer::toggleCameraType()
{
    stopMovingCamera();
    m_scene->toggleProjection();
    saveHomePosition();
    emit modeChanged();
}

void SoQtFullViewer::setDrawStyle(DrawStyle style)
{
    m_drawStyle = style;
    getSceneManager()->getGLRenderAction()->setDrawStyle(style == AS_IS ? -1 : int(style));
    scheduleRedraw();
    emit modeChanged();
}

void SoQtFullViewer::setDecoration(bool on)
{
    m_decoration->setShown(on);
}

bool SoQtFullViewer::isDecoration() const
{
    return m_decoration->isShown();
}

bool SoQtFullViewer::seekTo(const QPoint& place)
{
    const QWidget* widget = getGLWidget();
    const qreal ratio = widget->devicePixelRatioF();
    SoRayPickAction pick(getViewportRegion());
    pick.setPoint(SbVec2s(short(place.x() * ratio), short((widget->height() - 1 - place.y()) * ratio)));
    pick.apply(m_scene->root());
    const SoPickedPoint* hit = pick.getPickedPoint();
    if (!hit)
        return false;
    SoCamera& camera = *getCamera();
    CameraState target(camera);
    const SbVec3f way = hit->getPoint() - camera.position.getValue();
    SbVec3f direction = way;
    direction.normalize();
    SbVec3f before;
    camera.orientation.getValue().multVec(SbVec3f(0, 0, -1), before);
    target.orientation = camera.orientation.getValue() * SbRotation(before, direction);
    target.position = camera.position.getValue() + way * 0.5f;
    target.focalDistance = way.length() * 0.5f;
    target.height *= 0.5f;
    moveCameraTo(target);
    return true;
}

bool SoQtFullViewer::handleWidgetEvent(QEvent& event)
{
    if (event.type() == QEvent::ContextMenu)
        return true;
    if (event.type() == QEvent::MouseButtonPress) {
        const auto& mouse = static_cast<QMouseEvent&>(event);
        if (mouse.button() == Qt::RightButton && m_hasMenu) {
            showMenu(mouse.globalPos());
            return true;
        }
        if (mouse.button() == Qt::LeftButton && m_isSeeking) {
            seekTo(mouse.pos());
            setSeekMode(false);
            return true;
        }
    }
    if (event.type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent&>(event).key()) {
    case Qt::Key_Escape:
        setViewing(!isViewing());
        return true;
    case Qt::Key_S:
        setSeekMode(!isSeekMode());
        return true;
    case Qt::Key_H:
    case Qt::Key_Home:
        resetToHomePosition();
        return true;
    case Qt::Key_A:
        viewAll();
        return true;
    case Qt::Key_P:
        toggleCameraType();
        return true;
    default:
        return false;
    }
}

void SoQtFullViewer::showMenu(const QPoint& globalPlace)
{
    QMenu menu(getGLWidget());
    menu.addAction(tr("Home"), this, [this] { resetToHomePosition(); });
    menu.addAction(tr("Set Home"), this, [this] { saveHomePosition(); });
    menu.addAction(tr("View All"), this, [this] { viewAll(); });
    menu.addAction(tr("Seek"), this, [this] { setSeekMode(true); });
    menu.addSeparator();
    QMenu* styles = menu.addMenu(tr("Draw Style"));
    auto* group = new QActionGroup(styles);
    const std::pair<DrawStyle, QString> names[] = {{AS_IS, tr("As Is")}, {LINES, tr("Lines")}, {POINTS, tr("Points")}};
    for (const auto& [style, name] : names) {
        QAction* action = styles->addAction(name, this, [this, style = style] { setDrawStyle(style); });
        action->setCheckable(true);
        action->setChecked(style == m_drawStyle);
        group->addAction(action);
    }
    const auto addSwitch = [&](const QString& name, bool isOn, auto&& change) {
        QAction* action = menu.addAction(name, this, change);
        action->setCheckable(true);
        action->setChecked(isOn);
    };
    addSwitch(tr("Headlight"), isHeadlight(), [this] { setHeadlight(!isHeadlight()); });
    addSwitch(tr("Decoration"), isDecoration(), [this] { setDecoration(!isDecoration()); });
    addSwitch(tr("Viewing"), isViewing(), [this] { setViewing(!isViewing()); });
    menu.addAction(tr("Perspective or Parallel"), this, [this] { toggleCameraType(); });
    menu.exec(globalPlace);
}
