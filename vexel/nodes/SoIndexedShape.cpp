#include <vexel/nodes/SoIndexedShape.h>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoState.h>

SbBox3f SoIndexedShape::computeBoundingBox(const SoState& state) const
{
    const StateCoordinates coordinates(state);
    const int* indices = coordIndex.getValues();
    SbBox3f box;
    for (int i = 0; i < coordIndex.getNum(); ++i) {
        if (coordinates.contains(indices[i]))
            box.extendBy(coordinates[indices[i]]);
    }
    return box;
}
