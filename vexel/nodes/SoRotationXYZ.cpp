#include <vexel/nodes/SoRotationXYZ.h>

#include <vexel/state/SoState.h>

SbRotation SoRotationXYZ::getRotation() const
{
    if (angle.isIgnored() || axis.isIgnored())
        return SbRotation();
    const int number = axis.getValue();
    return SbRotation(SbVec3f(number == X, number == Y, number == Z), angle.getValue());
}

SbMatrix SoRotationXYZ::getMatrix(const SoState&) const
{
    SbMatrix matrix;
    matrix.setRotate(getRotation());
    return matrix;
}
