#include <vexel/nodes/SoNonIndexedShape.h>

#include <algorithm>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoState.h>

SoNonIndexedShape::Range SoNonIndexedShape::getRange(const SoState& state) const
{
    const int num = StateCoordinates(state).getNum();
    const int first = std::clamp(startIndex.getValue(), 0, num);
    return {first, std::clamp(countCoordinates(num - first), 0, num - first)};
}

SbBox3f SoNonIndexedShape::computeBoundingBox(const SoState& state) const
{
    const StateCoordinates coordinates(state);
    const Range range = getRange(state);
    SbBox3f box;
    for (int i = range.first; i < range.first + range.count; ++i)
        box.extendBy(coordinates[i]);
    return box;
}
