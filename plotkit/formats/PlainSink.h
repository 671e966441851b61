#pragma once

#include <plotkit/picture/FlatShading.h>
#include <plotkit/picture/InkColor.h>
#include <plotkit/picture/OpaqueColors.h>

#include <cstddef>

/**
 * Base of the sinks of formats that know polygons and solid lines of one opaque colour only. Pictures go to front(),
 * which makes such of what they consist of: gradients are cut into small parts, transparent colours mixed with that of
 * the ground, dashes cut into strokes. What has a place that is no number is left out.
 */
class PLOTKIT_API PlainSink : protected PictureSink {
public:
    PictureSink& front() { return m_front; }

protected:
    struct Limits {
        std::size_t linePoints;  ///< most of them in a line; longer ones are split
        float colorStep = 0.03f; ///< see FlatShading
        OpaqueColors::Ground ground = OpaqueColors::Ground::Painted;
        double seam =
            0.1; ///< by which polygons are grown, so that no ground shines through between them, in millimetres
    };

    explicit PlainSink(const Limits& limits);

    virtual void fill(const std::vector<PagePoint>& corners, const InkColor& color) = 0;
    /** @param width  in millimetres */
    virtual void stroke(const std::vector<PagePoint>& points, double width, const InkColor& color) = 0;
    virtual void write(const PageText& text, const InkColor& color) = 0;

    /** In square millimetres; negative for clockwise corners. */
    static double signedArea(const std::vector<PagePoint>& corners);

private:
    void ground(const PageColor& bottom, const PageColor& top) final { m_flat.ground(bottom, top); }
    void polygon(const std::vector<PagePoint>& corners, const PageColor& color) final;
    void shadedPolygon(const std::vector<ShadedCorner>& corners) final { m_flat.shadedPolygon(corners); }
    void polyline(const std::vector<PagePoint>& points, const LineStyle& style) final;
    void dot(const PagePoint& middle, double diameter, const PageColor& color) final;
    void text(const PageText& text) final;

    FlatShading m_flat;
    OpaqueColors m_front;
    std::size_t m_linePoints;
    double m_seam;
};
