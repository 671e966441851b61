#include <vexel/nodes/SoRotation.h>

#include <vexel/state/SoState.h>

SbMatrix SoRotation::getMatrix(const SoState&) const
{
    SbMatrix matrix;
    if (!rotation.isIgnored())
        matrix.setRotate(rotation.getValue());
    return matrix;
}
