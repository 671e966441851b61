#include <vexel/actions/SoOffscreenRenderArea.h>

#include <algorithm>
#include <memory>
#include <string>

#include <QtCore/QFileInfo>
#include <QtGui/QImage>
#include <QtGui/QImageWriter>
#include <QtGui/QPainter>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoViewableScene.h>
#include <vexel/actions/detail/PostScriptPicture.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/io/SoAtomicFile.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>

namespace {

constexpr const char* Method = "SoOffscreenRenderArea::render";
constexpr int Samples = 4;
/** Width and height of what is drawn at once; with its samples it takes a few hundred megabytes. */
constexpr int Largest_piece = 2048;

/** The region in a window that shows the piece of the picture at a place. */
SbViewportRegion pieceOf(const SbViewportRegion& whole, int x, int y, const vexel::OffscreenTarget& target)
{
    SbViewportRegion piece = whole;
    piece.setWindowSize(static_cast<short>(target.width()), static_cast<short>(target.height()));
    piece.setViewportPixels(whole.getViewportOriginPixels() - SbVec2s(static_cast<short>(x), static_cast<short>(y)),
                            whole.getViewportSizePixels());
    return piece;
}

} // namespace

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

bool SoOffscreenRenderArea::canDraw(const SbVec2s& size) const
{
    if (!m_root)
        SoDebugError::post(Method, "there is no scene graph; set one first");
    else if (size[0] < 1 || size[1] < 1)
        SoDebugError::post(Method, "a picture of %d x %d pixels cannot be drawn; use sizes from 1 to 32767", size[0],
                           size[1]);
    else
        return true;
    return false;
}

QImage SoOffscreenRenderArea::render()
{
    const SbVec2s& size = m_region.getWindowSize();
    if (!canDraw(size))
        return QImage();
    std::string error;
    const std::unique_ptr<vexel::GLContext> context = vexel::GLContext::create(error);
    if (!context) {
        SoDebugError::post(Method, "no OpenGL context can be made: %s", error.c_str());
        return QImage();
    }
    const vexel::GLContext::Scope scope(*context);
    QImage picture(size[0], size[1], QImage::Format_ARGB32_Premultiplied);
    const vexel::OffscreenTarget target(std::min<int>(size[0], Largest_piece), std::min<int>(size[1], Largest_piece),
                                        Samples);
    if (picture.isNull() || !target.isComplete()) {
        SoDebugError::post(Method, "there is not enough memory for a picture of %d x %d pixels", size[0], size[1]);
        return QImage();
    }
    target.bind();
    const SoViewableScene view(m_root, m_region);
    SoGLRenderAction action(m_region);
    action.setBackgroundColor(m_backgroundColor);
    if (m_transparencyType)
        action.setTransparencyType(*m_transparencyType);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    // The pieces are counted from the lower left corner, as pixels of viewports are.
    for (int y = 0; y < size[1]; y += target.height()) {
        for (int x = 0; x < size[0]; x += target.width()) {
            action.setViewportRegion(pieceOf(m_region, x, y, target));
            action.apply(view.root());
            painter.drawImage(x, size[1] - y - target.height(), target.image());
        }
    }
    painter.end();
    action.releaseGraphics();
    return picture;
}

bool SoOffscreenRenderArea::renderToFile(const SbString& fileName, double quality)
{
    constexpr const char* Writing = "SoOffscreenRenderArea::renderToFile";
    const QString& name = fileName.toQString();
    const QByteArray format = QFileInfo(name).suffix().toLower().toLatin1();
    const bool isPostScript = format == "ps";
    if (!isPostScript && !QImageWriter::supportedImageFormats().contains(format)) {
        SoDebugError::post(Writing,
                           "\"%s\" ends in no picture format that can be written; use .png or .jpg, for example",
                           name.toUtf8().constData());
        return false;
    }
    const QImage image = render();
    if (image.isNull())
        return false;
    SoAtomicFile file;
    const bool isOpen = file.open(fileName);
    QImageWriter writer(&file.device(), format);
    if (quality > 0)
        writer.setQuality(static_cast<int>(quality * 100));
    if (isOpen && !(isPostScript ? vexel::writePostScript(image, file.device()) : writer.write(image)))
        file.giveUp(writer.errorString());
    if (isOpen && file.close())
        return true;
    SoDebugError::post(Writing, "\"%s\" could not be written: %s", name.toUtf8().constData(),
                       file.getReason().toUtf8().constData());
    return false;
}
