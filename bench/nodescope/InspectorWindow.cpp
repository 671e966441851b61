// The inspector's window on the scene that the command line names. Leaves once window and GL view are painted.

#include <nodescope/entry/SoNodescopeImpl.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>

#include <QApplication>
#include <QOpenGLWidget>
#include <cstdlib>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoNodescopeImpl::startStandalone(argc, argv);
    const auto* view = SoNodescopeViewer::getInstance()->mainFrame().findChild<QOpenGLWidget*>();
    if (!view)
        return 1;
    QObject::connect(view, &QOpenGLWidget::frameSwapped, [] { std::_Exit(0); });
    return QApplication::exec();
}
