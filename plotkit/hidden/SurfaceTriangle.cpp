#include "SurfaceTriangle.h"

#include <algorithm>
#include <tuple>
#include <utility>

SurfaceTriangle::SurfaceTriangle(const std::array<PagePoint, 3>& points, const std::array<double, 3>& pointDepths,
                                 bool opaque)
    : corners(points), depths(pointDepths), isOpaque(opaque)
{
    if (polygon().area() < 0) {
        std::swap(corners[1], corners[2]);
        std::swap(depths[1], depths[2]);
    }
    for (std::size_t i = 0; i < 3; ++i)
        insides[i] = Linear::leftOf(corners[i], corners[(i + 1) % 3]);
    std::tie(left, right) = std::minmax({corners[0].x, corners[1].x, corners[2].x});
    std::tie(bottom, top) = std::minmax({corners[0].y, corners[1].y, corners[2].y});
    nearest = std::min({depths[0], depths[1], depths[2]});
    depth = Linear::through(corners, depths);
}
