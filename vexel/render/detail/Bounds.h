#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace vexel {

/** Axis-aligned box as two corners; the default is empty. Kept plain because culling walks millions of them. */
struct Bounds {
    static constexpr float Huge = std::numeric_limits<float>::max();

    float lo[3] = {Huge, Huge, Huge};
    float hi[3] = {-Huge, -Huge, -Huge};

    bool isEmpty() const { return !(lo[0] <= hi[0] && lo[1] <= hi[1] && lo[2] <= hi[2]); }

    /** A point with a coordinate that is not finite is left out: one bad vertex must not hide or blow up a shape. */
    void extend(const float* point)
    {
        if (!std::isfinite(point[0]) || !std::isfinite(point[1]) || !std::isfinite(point[2]))
            return;
        for (int axis = 0; axis < 3; ++axis) {
            lo[axis] = std::min(lo[axis], point[axis]);
            hi[axis] = std::max(hi[axis], point[axis]);
        }
    }

    void extend(const Bounds& other)
    {
        for (int axis = 0; axis < 3; ++axis) {
            lo[axis] = std::min(lo[axis], other.lo[axis]);
            hi[axis] = std::max(hi[axis], other.hi[axis]);
        }
    }

    /** Box around this box after an affine map given as three rows of four (column vectors). */
    Bounds transformed(const float rows[12]) const
    {
        Bounds result;
        if (isEmpty())
            return result;
        for (int row = 0; row < 3; ++row) {
            float centre = rows[row * 4 + 3];
            float extent = 0;
            for (int axis = 0; axis < 3; ++axis) {
                centre += rows[row * 4 + axis] * 0.5f * (lo[axis] + hi[axis]);
                extent += std::fabs(rows[row * 4 + axis]) * 0.5f * (hi[axis] - lo[axis]);
            }
            result.lo[row] = centre - extent;
            result.hi[row] = centre + extent;
        }
        return result;
    }
};

} // namespace vexel
