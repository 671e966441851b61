#include <vexel/actions/detail/PostScriptPicture.h>

#include <memory>

#include <QtCore/QIODevice>
#include <QtGui/QImage>

#include <cairo-ps.h>
#include <cairo.h>

namespace vexel {

namespace {

cairo_status_t write(void* device, const unsigned char* data, unsigned int length)
{
    const qint64 written = static_cast<QIODevice*>(device)->write(reinterpret_cast<const char*>(data), length);
    return written == qint64(length) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

} // namespace

bool writePostScript(const QImage& picture, QIODevice& device)
{
    QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    const Surface source(cairo_image_surface_create_for_data(pixels.bits(), CAIRO_FORMAT_RGB24, pixels.width(),
                                                             pixels.height(), pixels.bytesPerLine()),
                         cairo_surface_destroy);
    const Surface page(cairo_ps_surface_create_for_stream(write, &device, pixels.width(), pixels.height()),
                       cairo_surface_destroy);
    const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(page.get()), cairo_destroy);
    cairo_set_source_surface(context.get(), source.get(), 0, 0);
    cairo_paint(context.get());
    cairo_show_page(context.get());
    cairo_surface_finish(page.get());
    return cairo_status(context.get()) == CAIRO_STATUS_SUCCESS &&
           cairo_surface_status(page.get()) == CAIRO_STATUS_SUCCESS;
}

} // namespace vexel
