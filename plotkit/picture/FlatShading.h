#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/PictureSink.h>

/**
 * Stands in front of a sink whose format knows polygons of one colour only: cuts shaded ones into so small parts that
 * the steps between their colours are not seen.
 */
class PLOTKIT_API FlatShading : public PictureSink {
public:
    /** @param step  the largest difference of a colour's component within a part, from 0 to 1 */
    explicit FlatShading(PictureSink& sink, float step = 0.03f) : m_sink(sink), m_step(step) {}

    void begin(const PageLayout& page) override;
    void ground(const PageColor& bottom, const PageColor& top) override;
    void polygon(const std::vector<PagePoint>& corners, const PageColor& color) override
    {
        m_sink.polygon(corners, color);
    }
    void shadedPolygon(const std::vector<ShadedCorner>& corners) override;
    void polyline(const std::vector<PagePoint>& points, const LineStyle& style) override
    {
        m_sink.polyline(points, style);
    }
    void dot(const PagePoint& middle, double diameter, const PageColor& color) override
    {
        m_sink.dot(middle, diameter, color);
    }
    void text(const PageText& text) override { m_sink.text(text); }
    bool end() override { return m_sink.end(); }

private:
    PictureSink& m_sink;
    PageRect m_picture;
    float m_step;
};
