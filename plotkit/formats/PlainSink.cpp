#include "PlainSink.h"

#include <plotkit/picture/Strokes.h>

#include <algorithm>
#include <cmath>

namespace {

/** How far a sharp corner may go out, in seams. */
constexpr double Longest_corner = 3;

bool isFinite(const PagePoint& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool areFinite(const std::vector<PagePoint>& points)
{
    return std::all_of(points.begin(), points.end(), isFinite);
}

std::vector<PagePoint> withoutRepetitions(const std::vector<PagePoint>& corners)
{
    std::vector<PagePoint> kept;
    const auto isSame = [](const PagePoint& a, const PagePoint& b) { return a.x == b.x && a.y == b.y; };
    for (const PagePoint& corner : corners) {
        if (kept.empty() || !isSame(kept.back(), corner))
            kept.push_back(corner);
    }
    while (kept.size() > 1 && isSame(kept.front(), kept.back()))
        kept.pop_back();
    return kept;
}

/** A convex polygon, larger at each side. */
std::vector<PagePoint> grown(const std::vector<PagePoint>& corners, double outward)
{
    const auto normal = [&](std::size_t side) {
        const PagePoint& p = corners[side % corners.size()];
        const PagePoint& q = corners[(side + 1) % corners.size()];
        const double length = std::hypot(q.x - p.x, q.y - p.y);
        return PagePoint{(q.y - p.y) / length, (p.x - q.x) / length};
    };
    std::vector<PagePoint> larger;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PagePoint before = normal(i + corners.size() - 1);
        const PagePoint after = normal(i);
        PagePoint out{before.x + after.x, before.y + after.y};
        const double square = out.x * out.x + out.y * out.y;
        const double factor = 2 / std::max(square, 4 / (Longest_corner * Longest_corner));
        larger.push_back({corners[i].x + outward * factor * out.x, corners[i].y + outward * factor * out.y});
    }
    return larger;
}

} // namespace

PlainSink::PlainSink(const Limits& limits)
    : m_flat(*this, limits.colorStep), m_front(m_flat, limits.ground), m_linePoints(limits.linePoints),
      m_seam(limits.seam)
{
}

double PlainSink::signedArea(const std::vector<PagePoint>& corners)
{
    double twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PagePoint& p = corners[i];
        const PagePoint& q = corners[(i + 1) % corners.size()];
        twice += p.x * q.y - q.x * p.y;
    }
    return twice / 2;
}

void PlainSink::polygon(const std::vector<PagePoint>& corners, const PageColor& color)
{
    if (!areFinite(corners))
        return;
    const std::vector<PagePoint> kept = withoutRepetitions(corners);
    if (kept.size() >= 3)
        fill(grown(kept, signedArea(kept) < 0 ? -m_seam : m_seam), InkColor::of(color));
}

void PlainSink::polyline(const std::vector<PagePoint>& points, const LineStyle& style)
{
    if (!areFinite(points))
        return;
    for (const Strokes::Line& dash : Strokes::dashed(points, style.dashes)) {
        for (const Strokes::Line& part : Strokes::split(dash, m_linePoints))
            stroke(part, style.width, InkColor::of(style.color));
    }
}

void PlainSink::dot(const PagePoint& middle, double diameter, const PageColor& color)
{
    if (!isFinite(middle) || !(diameter > 0))
        return;
    const int numCorners = int(std::clamp(8 + diameter * 8, 8.0, 64.0));
    std::vector<PagePoint> corners;
    for (int i = 0; i < numCorners; ++i) {
        const double angle = 2 * 3.14159265358979 * i / numCorners;
        corners.push_back({middle.x + diameter / 2 * std::cos(angle), middle.y + diameter / 2 * std::sin(angle)});
    }
    fill(corners, InkColor::of(color));
}

void PlainSink::text(const PageText& text)
{
    if (isFinite(text.place) && std::isfinite(text.angle) && text.size > 0 && !text.text.isEmpty())
        write(text, InkColor::of(text.color));
}
