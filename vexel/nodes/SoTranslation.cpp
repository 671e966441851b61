#include <vexel/nodes/SoTranslation.h>

#include <vexel/state/SoState.h>

SbMatrix SoTranslation::getMatrix(const SoState&) const
{
    SbMatrix matrix;
    if (!translation.isIgnored())
        matrix.setTranslate(translation.getValue());
    return matrix;
}
