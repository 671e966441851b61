#include <vexel/actions/SoOffscreenRenderArea.h>

#include <memory>
#include <string>

#include <QtCore/QFileInfo>
#include <QtGui/QImage>
#include <QtGui/QImageWriter>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoViewableScene.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>

SoOffscreenRenderArea::SoOffscreenRenderArea() = default;

SoOffscreenRenderArea::~SoOffscreenRenderArea()
{
    setSceneGraph(nullptr);
}

void SoOffscreenRenderArea::unref() const
{
    if (--m_references == 0)
        delete this;
}

void SoOffscreenRenderArea::setSceneGraph(SoNode* root)
{
    if (root)
        root->ref();
    if (m_root)
        m_root->unref();
    m_root = root;
}

QImage SoOffscreenRenderArea::render()
{
    constexpr const char* Method = "SoOffscreenRenderArea::render";
    constexpr int Samples = 4;
    if (!m_root) {
        SoDebugError::post(Method, "there is no scene graph; set one first");
        return QImage();
    }
    std::string error;
    const std::unique_ptr<vexel::GLContext> context = vexel::GLContext::create(error);
    if (!context) {
        SoDebugError::post(Method, "no OpenGL context can be made: %s", error.c_str());
        return QImage();
    }
    const vexel::GLContext::Scope scope(*context);
    const SbVec2s& size = m_region.getWindowSize();
    const int most = vexel::OffscreenTarget::maxSize();
    if (size[0] < 1 || size[1] < 1 || size[0] > most || size[1] > most) {
        SoDebugError::post(Method, "a picture of %d x %d pixels cannot be drawn; use sizes from 1 to %d", size[0],
                           size[1], most);
        return QImage();
    }
    const vexel::OffscreenTarget target(size[0], size[1], Samples);
    if (!target.isComplete()) {
        SoDebugError::post(Method, "there is not enough memory for a picture of %d x %d pixels", size[0], size[1]);
        return QImage();
    }
    target.bind();
    const SoViewableScene view(m_root, m_region);
    SoGLRenderAction action(m_region);
    action.setBackgroundColor(m_backgroundColor);
    action.apply(view.root());
    QImage image = target.image();
    action.releaseGraphics();
    return image;
}

bool SoOffscreenRenderArea::renderToFile(const SbString& fileName, double quality)
{
    constexpr const char* Method = "SoOffscreenRenderArea::renderToFile";
    const QString& name = fileName.toQString();
    const QByteArray format = QFileInfo(name).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        SoDebugError::post(Method,
                           "\"%s\" ends in no picture format that can be written; use .png or .jpg, for example",
                           name.toUtf8().constData());
        return false;
    }
    const QImage image = render();
    if (image.isNull())
        return false;
    QImageWriter writer(name, format);
    if (quality > 0)
        writer.setQuality(static_cast<int>(quality * 100));
    if (writer.write(image))
        return true;
    SoDebugError::post(Method, "\"%s\" could not be written: %s", name.toUtf8().constData(),
                       writer.errorString().toUtf8().constData());
    return false;
}
