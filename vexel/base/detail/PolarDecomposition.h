#pragma once

class SbMatrix;
class SbRotation;
class SbVec3f;

namespace vexel::detail {

/**
 * Splits the upper left 3x3 part of a matrix into a scaling along turned axes and a rotation, in that order:
 * A = Q^-1 * diag(scale) * Q * R, where Q is the matrix of `scaleOrientation` and R that of `rotation`.
 */
void decomposePolar(const SbMatrix& matrix, SbRotation& rotation, SbVec3f& scale, SbRotation& scaleOrientation);

} // namespace vexel::detail
