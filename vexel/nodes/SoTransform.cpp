#include <vexel/nodes/SoTransform.h>

#include <vexel/state/SoState.h>

SbMatrix SoTransform::matrix() const
{
    const auto used = [](const auto& field, auto neutral) { return field.isIgnored() ? neutral : field.getValue(); };
    SbMatrix result;
    result.setTransform(used(translation, SbVec3f(0, 0, 0)), used(rotation, SbRotation()),
                        used(scaleFactor, SbVec3f(1, 1, 1)), used(scaleOrientation, SbRotation()),
                        used(center, SbVec3f(0, 0, 0)));
    return result;
}

SbMatrix SoTransform::getMatrix(const SoState&) const
{
    return matrix();
}

void SoTransform::pointAt(const SbVec3f& from, const SbVec3f& to)
{
    translation = from;
    rotation = SbRotation(SbVec3f(0, 0, 1), to - from);
    scaleFactor = SbVec3f(1, 1, 1);
    scaleOrientation = SbRotation();
}

void SoTransform::setMatrix(const SbMatrix& matrix)
{
    SbVec3f move;
    SbVec3f factors;
    SbRotation turn;
    SbRotation axes;
    matrix.getTransform(move, turn, factors, axes, center.getValue());
    translation = move;
    rotation = turn;
    scaleFactor = factors;
    scaleOrientation = axes;
}

void SoTransform::multLeft(const SbMatrix& other)
{
    setMatrix(other * matrix());
}

void SoTransform::multRight(const SbMatrix& other)
{
    setMatrix(matrix() * other);
}

void SoTransform::recenter(const SbVec3f& newCenter)
{
    const SbMatrix present = matrix();
    center = newCenter;
    setMatrix(present);
}
