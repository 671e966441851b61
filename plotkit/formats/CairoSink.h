#pragma once

#include <plotkit/picture/PictureSink.h>

#include <cairo.h>
#include <memory>

class QIODevice;

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
        void operator()(cairo_t* context) const;
        void operator()(cairo_pattern_t* pattern) const;
        void operator()(cairo_surface_t* surface) const;
    };

    QIODevice& m_device;
    Format m_format;
    PageRect m_picture;
    std::unique_ptr<cairo_surface_t, Release> m_surface;
    std::unique_ptr<cairo_t, Release> m_context;
    std::unique_ptr<cairo_pattern_t, Release> m_mesh; ///< shaded surfaces that are not painted yet
    int m_meshSize = 0;
};
