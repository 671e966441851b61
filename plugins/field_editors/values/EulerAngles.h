#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbRotation.h>

/** Rotations as three turns, about the x, then the y, then the z axis of space; in degrees. */
namespace EulerAngles {

SbRotation toRotation(const SbVec3f& degrees);
/** x and z from -180 to 180, y from -90 to 90; where y is at an end of its range z is 0. */
SbVec3f fromRotation(const SbRotation& rotation);

/** Degrees of an angle in radians, and back. */
///@{
double toDegrees(double radians);
double toRadians(double degrees);
///@}

} // namespace EulerAngles
