#pragma once

#include <plotkit/hidden/ConvexPolygon.h>

#include <array>

/** A triangle on the page with the depth of its points; nearer ones have the smaller depth. */
struct PLOTKIT_API SurfaceTriangle {
    std::array<PagePoint, 3> corners; ///< counter-clockwise
    std::array<double, 3> depths{};
    Linear depth; ///< of all its points
    bool isOpaque = true;

    /** Turned as needed. */
    SurfaceTriangle(const std::array<PagePoint, 3>& corners, const std::array<double, 3>& depths, bool isOpaque);

    ConvexPolygon polygon() const { return {corners[0], corners[1], corners[2]}; }
    /** Positive inside the edge from this corner to the next. */
    Linear inside(int edge) const { return Linear::leftOf(corners[edge], corners[(edge + 1) % 3]); }
    double nearest() const;
};
