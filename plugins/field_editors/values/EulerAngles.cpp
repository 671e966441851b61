#include "EulerAngles.h"

#include <algorithm>
#include <cmath>

namespace {

const double Degree = std::acos(-1.0) / 180;
/** Cosine of the angle about y below which single precision can't tell x and z apart. */
constexpr double Locked = 1e-3;

} // namespace

double EulerAngles::toDegrees(double radians)
{
    return radians / Degree;
}

double EulerAngles::toRadians(double degrees)
{
    return degrees * Degree;
}

SbRotation EulerAngles::toRotation(const SbVec3f& degrees)
{
    const auto turn = [&](const SbVec3f& axis, int i) {
        return SbRotation(axis, float(toRadians(double(degrees[i]))));
    };
    return turn({1, 0, 0}, 0) * turn({0, 1, 0}, 1) * turn({0, 0, 1}, 2);
}

SbVec3f EulerAngles::fromRotation(const SbRotation& rotation)
{
    SbMatrix m;
    rotation.getValue(m);
    const auto at = [&](int row, int column) { return double(m[row][column]); };
    // The product of the three turns has -sin y, sin x cos y and cos x cos y in its third column.
    const double y = std::asin(std::clamp(-at(0, 2), -1.0, 1.0));
    const bool isLocked = std::cos(y) < Locked;
    const double x = isLocked ? std::atan2(-at(2, 1), at(1, 1)) : std::atan2(at(1, 2), at(2, 2));
    const double z = isLocked ? 0 : std::atan2(at(0, 1), at(0, 0));
    return {float(toDegrees(x)), float(toDegrees(y)), float(toDegrees(z))};
}
