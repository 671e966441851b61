#pragma once

#include <plotkit/hidden/ConvexPolygon.h>

#include <array>

/** Depths closer than this count as the same: what is drawn first is seen then, as in a picture drawn in this order. */
constexpr double Same_depth = 1e-7;

/** A triangle on the page with the depth of its points; nearer ones have the smaller depth. */
struct PLOTKIT_API SurfaceTriangle {
    std::array<PagePoint, 3> corners; ///< counter-clockwise
    std::array<double, 3> depths{};
    Linear depth; ///< of all its points
    bool isOpaque = true;
    std::array<Linear, 3> insides; ///< positive inside the edge from each corner to the next
    double left = 0, right = 0, bottom = 0, top = 0;
    double nearest = 0; ///< the smallest depth

    /** Turned as needed. */
    SurfaceTriangle(const std::array<PagePoint, 3>& corners, const std::array<double, 3>& depths, bool isOpaque);

    ConvexPolygon polygon() const { return {corners[0], corners[1], corners[2]}; }
    /** Whether the rectangles around the two meet. */
    bool isNear(const SurfaceTriangle& other) const
    {
        return left < other.right && other.left < right && bottom < other.top && other.bottom < top;
    }
};
