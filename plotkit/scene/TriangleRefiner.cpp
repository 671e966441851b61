#include "TriangleRefiner.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

/** Millimetres below which an edge is not cut. */
constexpr double Least_edge = 0.4;
/** Millimetres up to which the middle of an edge tells how even the colour of a detailed surface is. */
constexpr double Telling_edge = 4;
constexpr float Even = 0.02f;
constexpr int Most_cuts = 10;

double distance(const ShadedPoint& a, const ShadedPoint& b)
{
    return std::hypot(a.projected.place.x - b.projected.place.x, a.projected.place.y - b.projected.place.y);
}

float unevenness(float a, float b, float middle)
{
    return std::abs((a + b) / 2 - middle);
}

} // namespace

TriangleRefiner::TriangleRefiner(const PageProjection& projection, const SurfaceShader& shader, EmitCB emit)
    : m_projection(projection), m_shader(shader), m_emit(std::move(emit)),
      m_longest(shader.isDetailed() ? Telling_edge : std::numeric_limits<double>::max())
{
}

ShadedPoint TriangleRefiner::shade(const SurfacePoint& point) const
{
    return {point, m_projection.project(point.place), m_shader.color(point)};
}

bool TriangleRefiner::isEven(const ShadedPoint& a, const ShadedPoint& b, const ShadedPoint& middle) const
{
    const double length = distance(a, b);
    if (length < Least_edge)
        return true;
    const auto uneven = [&](float PageColor::*part) {
        return unevenness(a.color.*part, b.color.*part, middle.color.*part);
    };
    return length < m_longest && std::max({uneven(&PageColor::red), uneven(&PageColor::green), uneven(&PageColor::blue),
                                           uneven(&PageColor::alpha)}) <= Even;
}

void TriangleRefiner::refine(const Corners& corners, int depth) const
{
    Corners middles; // of the edge behind each corner
    std::array<bool, 3> isCut{};
    int cuts = 0;
    for (std::size_t i = 0; i < 3 && depth < Most_cuts; ++i) {
        const ShadedPoint& next = corners[(i + 1) % 3];
        if (distance(corners[i], next) < Least_edge)
            continue;
        middles[i] = shade(corners[i].surface.towards(next.surface, 0.5f));
        isCut[i] = !isEven(corners[i], next, middles[i]);
        cuts += isCut[i];
    }
    if (cuts == 0) {
        m_emit(corners);
        return;
    }
    if (cuts == 3) {
        for (std::size_t i = 0; i < 3; ++i)
            refine({corners[i], middles[i], middles[(i + 2) % 3]}, depth + 1);
        refine(middles, depth + 1);
        return;
    }
    // Turned so that the first edge is cut, and with two cuts the third one is not.
    std::size_t first = 0;
    while (!isCut[first] || (cuts == 2 && !isCut[(first + 1) % 3]))
        ++first;
    const ShadedPoint& a = corners[first];
    const ShadedPoint& b = corners[(first + 1) % 3];
    const ShadedPoint& c = corners[(first + 2) % 3];
    const ShadedPoint& ab = middles[first];
    if (cuts == 1) {
        refine({a, ab, c}, depth + 1);
        refine({ab, b, c}, depth + 1);
        return;
    }
    const ShadedPoint& bc = middles[(first + 1) % 3];
    refine({ab, b, bc}, depth + 1);
    refine({a, ab, bc}, depth + 1);
    refine({a, bc, c}, depth + 1);
}
