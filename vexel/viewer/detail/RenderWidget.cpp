#include <vexel/viewer/detail/RenderWidget.h>

#include <vexel/viewer/SoSceneManager.h>

#include <QOpenGLContext>
#include <QSurfaceFormat>

namespace {
constexpr int Samples = 4;
constexpr int Depth_bits = 24;
} // namespace

RenderWidget::RenderWidget(SoSceneManager* sceneManager, QWidget* parent)
    : QOpenGLWidget(parent), m_sceneManager(sceneManager)
{
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(Depth_bits);
    format.setSamples(Samples);
    setFormat(format);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(64, 64);
}

RenderWidget::~RenderWidget()
{
    releaseGraphics();
}

void RenderWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &RenderWidget::releaseGraphics);
}

void RenderWidget::releaseGraphics()
{
    if (!context())
        return;
    makeCurrent();
    m_sceneManager->releaseGraphics();
    doneCurrent();
    disconnect(context(), nullptr, this, nullptr);
}

void RenderWidget::updateRegion()
{
    const qreal ratio = devicePixelRatioF();
    SbViewportRegion region = m_sceneManager->getViewportRegion();
    region.setWindowSize(static_cast<short>(width() * ratio), static_cast<short>(height() * ratio));
    m_sceneManager->setViewportRegion(region);
}

void RenderWidget::resizeGL(int, int)
{
    updateRegion();
}

void RenderWidget::paintGL()
{
    m_sceneManager->render();
}
