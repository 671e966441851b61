#include <vexel/nodes/SoTriangleSet.h>

#include <algorithm>

#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoTriangleSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const StateCoordinates coordinates(state);
    const Range range = getRange(state);
    FaceList list;
    const auto corner = [&](int i) { return ShapeCorner{range.first + i, range.first + i, i}; };
    for (int i = 0; i + 2 < range.count; i += 3)
        list.addTriangle(coordinates, corner(i), corner(i + 1), corner(i + 2), {i / 3, i / 3});
    buildFaces(list, state, nullptr, geometry);
}

int SoTriangleSet::countCoordinates(int available) const
{
    const int wanted = numVertices.getValue();
    return (wanted < 0 ? available : std::min(wanted, available)) / 3 * 3;
}
