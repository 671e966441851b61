#include "CairoSink.h"

#include <QIODevice>
#include <cairo-pdf.h>
#include <cairo-ps.h>
#include <cairo.h>

namespace {

constexpr double Points_per_millimetre = 72 / 25.4;
/** Width of a seam, in millimetres, by which surfaces overlap so that no ground shines through between them. */
constexpr double Seam = 0.05;
constexpr int Most_patches = 1000; ///< in a mesh

cairo_status_t write(void* device, const unsigned char* data, unsigned int length)
{
    const qint64 written = static_cast<QIODevice*>(device)->write(reinterpret_cast<const char*>(data), length);
    return written == qint64(length) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

} // namespace

void CairoSink::Release::operator()(cairo_t* context) const
{
    cairo_destroy(context);
}

void CairoSink::Release::operator()(cairo_pattern_t* pattern) const
{
    cairo_pattern_destroy(pattern);
}

void CairoSink::Release::operator()(cairo_surface_t* surface) const
{
    cairo_surface_destroy(surface);
}

CairoSink::CairoSink(QIODevice& device, Format format) : m_device(device), m_format(format) {}

CairoSink::~CairoSink() = default;

void CairoSink::begin(const PageLayout& page)
{
    const auto create =
        m_format == Format::Pdf ? cairo_pdf_surface_create_for_stream : cairo_ps_surface_create_for_stream;
    m_surface.reset(create(write, &m_device, page.width * Points_per_millimetre, page.height * Points_per_millimetre));
    m_context.reset(cairo_create(m_surface.get()));
    m_picture = page.picture;
    cairo_t* const context = m_context.get();
    cairo_scale(context, Points_per_millimetre, -Points_per_millimetre);
    cairo_translate(context, 0, -page.height);
    cairo_rectangle(context, page.picture.left, page.picture.bottom, page.picture.width, page.picture.height);
    cairo_clip(context);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
}

void CairoSink::ground(const PageColor& bottom, const PageColor& top)
{
    const std::unique_ptr<cairo_pattern_t, Release> colors(
        cairo_pattern_create_linear(0, m_picture.bottom, 0, m_picture.top()));
    const auto add = [&](double place, const PageColor& color) {
        cairo_pattern_add_color_stop_rgba(colors.get(), place, double(color.red), double(color.green),
                                          double(color.blue), double(color.alpha));
    };
    add(0, bottom);
    add(1, top);
    cairo_set_source(m_context.get(), colors.get());
    cairo_paint(m_context.get());
}

bool CairoSink::end()
{
    paintMesh();
    m_context.reset();
    cairo_surface_finish(m_surface.get());
    const bool isComplete = cairo_surface_status(m_surface.get()) == CAIRO_STATUS_SUCCESS;
    m_surface.reset();
    return isComplete;
}

void CairoSink::setColor(const PageColor& color)
{
    cairo_set_source_rgba(m_context.get(), double(color.red), double(color.green), double(color.blue),
                          double(color.alpha));
}

void CairoSink::outline(const std::vector<PagePoint>& points)
{
    for (const PagePoint& point : points)
        cairo_line_to(m_context.get(), point.x, point.y);
}

void CairoSink::polygon(const std::vector<PagePoint>& corners, const PageColor& color)
{
    paintMesh();
    setColor(color);
    outline(corners);
    cairo_close_path(m_context.get());
    if (color.alpha < 1) { // where parts overlap they would be darker
        cairo_fill(m_context.get());
        return;
    }
    cairo_fill_preserve(m_context.get());
    cairo_set_dash(m_context.get(), nullptr, 0, 0);
    cairo_set_line_width(m_context.get(), Seam);
    cairo_stroke(m_context.get());
}

void CairoSink::shadedPolygon(const std::vector<ShadedCorner>& corners)
{
    if (!m_mesh)
        m_mesh.reset(cairo_pattern_create_mesh());
    cairo_pattern_t* const mesh = m_mesh.get();
    for (std::size_t i = 2; i < corners.size(); ++i) {
        const ShadedCorner* const triangle[] = {&corners[0], &corners[i - 1], &corners[i]};
        cairo_mesh_pattern_begin_patch(mesh);
        cairo_mesh_pattern_move_to(mesh, corners[0].point.x, corners[0].point.y);
        for (const int k : {1, 2, 0})
            cairo_mesh_pattern_line_to(mesh, triangle[k]->point.x, triangle[k]->point.y);
        for (unsigned k = 0; k < 4; ++k) { // the fourth corner of a triangle is its first one
            const PageColor& color = triangle[k % 3]->color;
            cairo_mesh_pattern_set_corner_color_rgba(mesh, k, double(color.red), double(color.green),
                                                     double(color.blue), double(color.alpha));
        }
        cairo_mesh_pattern_end_patch(mesh);
        ++m_meshSize;
    }
    if (m_meshSize >= Most_patches)
        paintMesh();
}

void CairoSink::paintMesh()
{
    if (!m_mesh)
        return;
    cairo_set_source(m_context.get(), m_mesh.get());
    cairo_paint(m_context.get());
    m_mesh.reset();
    m_meshSize = 0;
}

void CairoSink::polyline(const std::vector<PagePoint>& points, const LineStyle& style)
{
    paintMesh();
    setColor(style.color);
    cairo_set_line_width(m_context.get(), style.width);
    cairo_set_dash(m_context.get(), style.dashes.data(), int(style.dashes.size()), 0);
    outline(points);
    cairo_stroke(m_context.get());
}

void CairoSink::dot(const PagePoint& middle, double diameter, const PageColor& color)
{
    paintMesh();
    setColor(color);
    cairo_arc(m_context.get(), middle.x, middle.y, diameter / 2, 0, 2 * 3.14159265358979);
    cairo_fill(m_context.get());
}

void CairoSink::text(const PageText& text)
{
    paintMesh();
    cairo_t* const context = m_context.get();
    cairo_save(context);
    setColor(text.color);
    cairo_select_font_face(context, text.family.toUtf8().constData(),
                           text.isItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                           text.isBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(context, text.size);
    cairo_translate(context, text.place.x, text.place.y);
    cairo_rotate(context, text.angle * 3.14159265358979 / 180);
    cairo_scale(context, 1, -1); // letters stand upright where y goes up
    cairo_move_to(context, 0, 0);
    cairo_show_text(context, text.text.toUtf8().constData());
    cairo_restore(context);
}
