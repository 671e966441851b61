#include <vexel/nodes/SoScale.h>

#include <vexel/state/SoState.h>

SbMatrix SoScale::getMatrix(const SoState&) const
{
    SbMatrix matrix;
    if (!scaleFactor.isIgnored())
        matrix.setScale(scaleFactor.getValue());
    return matrix;
}
