#include "ExaminerWindow.h"

#include <nodescope/entry/EntryFunctions.h>
#include <vexel/nodes/SoSeparator.h>

#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>

namespace {

constexpr int Milliseconds_between_changes = 500;
constexpr int Milliseconds_between_services = 50;

} // namespace

ExaminerWindow::ExaminerWindow() : m_viewer(this, "Examiner")
{
    setWindowTitle("Examiner host");
    resize(700, 500);
    setCentralWidget(m_viewer.getWidget());
    m_viewer.setSceneGraph(m_scene.root());
    m_viewer.getGLWidget()->installEventFilter(this);

    menuBar()->addMenu("&File")->addAction("&Quit", qApp, &QApplication::quit, QKeySequence::Quit);
    QMenu* tools = menuBar()->addMenu("&Tools");
    m_inspect = tools->addAction("&Inspect Scene", this, &ExaminerWindow::inspect, Qt::Key_F12);

    connect(&m_changes, &QTimer::timeout, this, [this] { m_scene.step(); });
    m_changes.start(Milliseconds_between_changes);
    connect(&m_service, &QTimer::timeout, this, &ExaminerWindow::serveInspector);
}

ExaminerWindow::~ExaminerWindow()
{
    m_viewer.setSceneGraph(nullptr);
}

// [start]
void ExaminerWindow::inspect()
{
    _processEvents(); // an inspection that was just quit goes first
    _startRenderArea(&m_viewer);
    m_service.start(Milliseconds_between_services);
}

void ExaminerWindow::serveInspector()
{
    if (!_processEvents()) // it was quit
        m_service.stop();
}
// [end]

// [pick]
bool ExaminerWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        const QPoint place = static_cast<QMouseEvent*>(event)->pos();
        const int height = m_viewer.getGLWidget()->height();
        const qreal pixels = devicePixelRatioF();
        _setPickAction(m_viewer.getViewportRegion(),
                       SbVec2s(short(place.x() * pixels), short((height - 1 - place.y()) * pixels)));
    }
    return QMainWindow::eventFilter(watched, event);
}
// [end]
