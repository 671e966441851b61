#pragma once

#include <plotkit/picture/PictureSink.h>

#include <memory>

class QIODevice;
struct _cairo;
struct _cairo_pattern;
struct _cairo_surface;

/** Draws a picture with cairo: a page of a PDF or PostScript document, written to a device. */
class CairoSink : public PictureSink {
public:
    enum class Format { Pdf, PostScript };

    CairoSink(QIODevice& device, Format format);
    ~CairoSink() override;

    void begin(const PageLayout& page) override;
    void ground(const PageColor& bottom, const PageColor& top) override;
    void polygon(const std::vector<PagePoint>& corners, const PageColor& color) override;
    void shadedPolygon(const std::vector<ShadedCorner>& corners) override;
    void polyline(const std::vector<PagePoint>& points, const LineStyle& style) override;
    void dot(const PagePoint& middle, double diameter, const PageColor& color) override;
    void text(const PageText& text) override;
    bool end() override;

private:
    void paintMesh();
    void setColor(const PageColor& color);
    void outline(const std::vector<PagePoint>& points);

    struct Release {
        void operator()(_cairo* context) const;
        void operator()(_cairo_pattern* pattern) const;
        void operator()(_cairo_surface* surface) const;
    };

    QIODevice& m_device;
    Format m_format;
    PageRect m_picture;
    std::unique_ptr<_cairo_surface, Release> m_surface;
    std::unique_ptr<_cairo, Release> m_context;
    std::unique_ptr<_cairo_pattern, Release> m_mesh; ///< shaded surfaces that are not painted yet
    int m_meshSize = 0;
};
