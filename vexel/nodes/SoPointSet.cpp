#include <vexel/nodes/SoPointSet.h>

#include <algorithm>

#include <vexel/nodes/detail/LineBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoPointSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const Range range = getRange(state);
    LineBuilder builder(state, geometry, nullptr, static_cast<std::size_t>(range.count));
    for (int i = 0; i < range.count; ++i)
        builder.addPoint({range.first + i, range.first + i, i});
    builder.finish();
}

int SoPointSet::countCoordinates(int available) const
{
    return numPoints.getValue() < 0 ? available : std::min(numPoints.getValue(), available);
}
