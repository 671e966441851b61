// The least that a window with a GL view of that many samples a pixel can be. Leaves once both are painted.

#include <QApplication>
#include <QMainWindow>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QSurfaceFormat>
#include <cstdlib>

namespace {

class BareView : public QOpenGLWidget {
protected:
    void paintGL() override
    {
        QOpenGLFunctions* gl = context()->functions();
        gl->glClearColor(0.2f, 0.3f, 0.4f, 1);
        gl->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1200, 800);
    auto* view = new BareView;
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setSamples(argc > 1 ? std::atoi(argv[1]) : 0);
    view->setFormat(format);
    window.setCentralWidget(view);
    QObject::connect(view, &QOpenGLWidget::frameSwapped, [] { std::_Exit(0); });
    window.show();
    return QApplication::exec();
}
