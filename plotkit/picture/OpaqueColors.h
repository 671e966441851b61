#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/PictureSink.h>

/**
 * Stands in front of a sink whose format knows no transparency: mixes the colours of transparent things with that of
 * the ground where they lie, or with white paper. What they would let through of other things is not seen.
 */
class PLOTKIT_API OpaqueColors : public PictureSink {
public:
    enum class Ground { Painted, LeftOut };

    OpaqueColors(PictureSink& sink, Ground ground) : m_sink(sink), m_ground(ground) {}

    void begin(const PageLayout& page) override;
    void ground(const PageColor& bottom, const PageColor& top) override;
    void polygon(const std::vector<PagePoint>& corners, const PageColor& color) override;
    void shadedPolygon(const std::vector<ShadedCorner>& corners) override;
    void polyline(const std::vector<PagePoint>& points, const LineStyle& style) override;
    void dot(const PagePoint& middle, double diameter, const PageColor& color) override;
    void text(const PageText& text) override;
    bool end() override { return m_sink.end(); }

private:
    PageColor opaque(const PageColor& color, const PagePoint& place) const;

    PictureSink& m_sink;
    Ground m_ground;
    PageRect m_picture;
    PageColor m_bottom;
    PageColor m_top;
};
