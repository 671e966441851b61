#include "ConvexPolygon.h"

#include <algorithm>
#include <cmath>

Linear Linear::leftOf(const PagePoint& from, const PagePoint& to)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (length == 0)
        return {};
    const double a = -dy / length;
    const double b = dx / length;
    return {a, b, -(a * from.x + b * from.y)};
}

Linear Linear::through(const std::array<PagePoint, 3>& p, const std::array<double, 3>& values)
{
    const double twiceArea = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[2].x - p[0].x) * (p[1].y - p[0].y);
    if (twiceArea == 0)
        return {};
    const double d1 = values[1] - values[0];
    const double d2 = values[2] - values[0];
    const double a = (d1 * (p[2].y - p[0].y) - d2 * (p[1].y - p[0].y)) / twiceArea;
    const double b = (d2 * (p[1].x - p[0].x) - d1 * (p[2].x - p[0].x)) / twiceArea;
    return {a, b, values[0] - a * p[0].x - b * p[0].y};
}

ConvexPolygon::ConvexPolygon(std::initializer_list<PagePoint> corners)
{
    for (const PagePoint& corner : corners)
        add(corner);
}

void ConvexPolygon::add(const PagePoint& corner)
{
    if (m_size < Capacity)
        m_corners[m_size++] = corner;
}

double ConvexPolygon::area() const
{
    double twice = 0;
    for (std::size_t i = 2; i < m_size; ++i) {
        const PagePoint& o = m_corners[0];
        const PagePoint& p = m_corners[i - 1];
        const PagePoint& q = m_corners[i];
        twice += (p.x - o.x) * (q.y - o.y) - (q.x - o.x) * (p.y - o.y);
    }
    return twice / 2;
}

double ConvexPolygon::thickness() const
{
    double longest = 0;
    for (std::size_t i = 0; i < m_size; ++i) {
        const PagePoint& p = m_corners[i];
        const PagePoint& q = m_corners[i + 1 < m_size ? i + 1 : 0];
        longest = std::max(longest, std::hypot(q.x - p.x, q.y - p.y));
    }
    return longest > 0 ? area() / longest : 0;
}

ConvexPolygon ConvexPolygon::clipped(const Linear& side) const
{
    ConvexPolygon result;
    for (std::size_t i = 0; i < m_size; ++i) {
        const PagePoint& p = m_corners[i];
        const PagePoint& q = m_corners[i + 1 < m_size ? i + 1 : 0];
        const double dp = side.at(p);
        const double dq = side.at(q);
        if (dp >= 0)
            result.add(p);
        if ((dp > 0 && dq < 0) || (dp < 0 && dq > 0)) {
            // From the same end in both directions, so that neighbours are cut at the same point.
            const PagePoint& in = dp > 0 ? p : q;
            const PagePoint& out = dp > 0 ? q : p;
            const double part = std::abs(dp > 0 ? dp : dq) / (std::abs(dp) + std::abs(dq));
            result.add({in.x + (out.x - in.x) * part, in.y + (out.y - in.y) * part});
        }
    }
    return result;
}
