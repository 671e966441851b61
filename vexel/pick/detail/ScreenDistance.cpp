#include <vexel/pick/detail/ScreenDistance.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec4f.h>

namespace vexel {

namespace {

SbVec4f clipPoint(const SbMatrix& matrix, const SbVec3f& point)
{
    SbVec4f result;
    matrix.multVecMatrix(SbVec4f(point[0], point[1], point[2], 1), result);
    return result;
}

/** Shortens the stretch from `from` to `to` to where a value that is linear along it is not negative. */
bool shorten(float atStart, float atEnd, float& from, float& to)
{
    if (!(atStart >= 0 || atEnd >= 0)) // also for what is not a number
        return false;
    if (atStart < 0)
        from = std::max(from, atStart / (atStart - atEnd));
    if (atEnd < 0)
        to = std::min(to, atStart / (atStart - atEnd));
    return from <= to;
}

} // namespace

ScreenDistance::ScreenDistance(const SbMatrix& toClip, const SbVec3f& a, const SbVec3f& b)
    : distance(std::numeric_limits<float>::infinity()), x(0), y(0), along(0)
{
    const SbVec4f start = clipPoint(toClip, a);
    const SbVec4f end = clipPoint(toClip, b);
    float from = 0;
    float to = 1;
    if (!shorten(start[3] + start[2], end[3] + end[2], from, to) ||
        !shorten(start[3] - start[2], end[3] - end[2], from, to))
        return;
    const SbVec4f p = start * (1 - from) + end * from;
    const SbVec4f q = start * (1 - to) + end * to;
    if (!(p[3] > 0 && q[3] > 0))
        return;
    const float px = p[0] / p[3];
    const float py = p[1] / p[3];
    const float dx = q[0] / q[3] - px;
    const float dy = q[1] / q[3] - py;
    const float squared = dx * dx + dy * dy;
    const float seen = squared > 0 ? std::clamp(-(px * dx + py * dy) / squared, 0.0f, 1.0f) : 0.0f;
    x = px + seen * dx;
    y = py + seen * dy;
    distance = std::hypot(x, y);
    // What is half way on the screen is not half way in space: the farther half looks shorter.
    const float within = seen * p[3] / ((1 - seen) * q[3] + seen * p[3]);
    along = from + within * (to - from);
}

} // namespace vexel
