#include <examples/hosts/scene/MovingScene.h>

#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoQt.h>
#include <vexel/viewer/SoQtExaminerViewer.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

// Shows a scene in a viewer.

// [program]
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoQt::init(nullptr);
    MovingScene scene;
    QMainWindow window;
    window.setWindowTitle("Viewer host");
    window.resize(700, 500);
    SoQtExaminerViewer viewer(&window);
    window.setCentralWidget(viewer.getWidget());
    viewer.setSceneGraph(scene.root());

    window.menuBar()->addMenu("&File")->addAction("&Quit", qApp, &QApplication::quit, QKeySequence::Quit);

    QTimer changes;
    QObject::connect(&changes, &QTimer::timeout, [&] { scene.step(); });
    changes.start(500);
    window.show();
    return SoQt::mainLoop();
}
// [end]
