#include "OpaqueColors.h"

#include <algorithm>

namespace {

constexpr PageColor Paper{1, 1, 1, 1};

/** The second colour where part is 1; the alpha of neither counts. */
PageColor mixed(const PageColor& a, const PageColor& b, float part)
{
    const auto component = [&](float PageColor::*its) { return a.*its + (b.*its - a.*its) * part; };
    return {component(&PageColor::red), component(&PageColor::green), component(&PageColor::blue), 1};
}

} // namespace

PageColor OpaqueColors::opaque(const PageColor& color, const PagePoint& place) const
{
    if (color.alpha >= 1)
        return color;
    const double height = m_picture.height > 0 ? (place.y - m_picture.bottom) / m_picture.height : 0;
    return mixed(mixed(m_bottom, m_top, float(std::clamp(height, 0.0, 1.0))), color, std::max(color.alpha, 0.0f));
}

void OpaqueColors::begin(const PageLayout& page)
{
    m_picture = page.picture;
    m_bottom = m_top = Paper;
    m_sink.begin(page);
}

void OpaqueColors::ground(const PageColor& bottom, const PageColor& top)
{
    if (m_ground == Ground::LeftOut)
        return;
    m_bottom = mixed(Paper, bottom, bottom.alpha);
    m_top = mixed(Paper, top, top.alpha);
    m_sink.ground(m_bottom, m_top);
}

void OpaqueColors::polygon(const std::vector<PagePoint>& corners, const PageColor& color)
{
    PagePoint middle;
    for (const PagePoint& corner : corners) {
        middle.x += corner.x / double(corners.size());
        middle.y += corner.y / double(corners.size());
    }
    m_sink.polygon(corners, opaque(color, middle));
}

void OpaqueColors::shadedPolygon(const std::vector<ShadedCorner>& corners)
{
    std::vector<ShadedCorner> covering;
    for (const ShadedCorner& corner : corners)
        covering.push_back({corner.point, opaque(corner.color, corner.point)});
    m_sink.shadedPolygon(covering);
}

void OpaqueColors::polyline(const std::vector<PagePoint>& points, const LineStyle& style)
{
    LineStyle covering = style;
    if (!points.empty())
        covering.color = opaque(style.color, points.front());
    m_sink.polyline(points, covering);
}

void OpaqueColors::dot(const PagePoint& middle, double diameter, const PageColor& color)
{
    m_sink.dot(middle, diameter, opaque(color, middle));
}

void OpaqueColors::text(const PageText& text)
{
    PageText covering = text;
    covering.color = opaque(text.color, text.place);
    m_sink.text(covering);
}
