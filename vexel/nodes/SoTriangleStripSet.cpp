#include <vexel/nodes/SoTriangleStripSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/nodes/detail/TriangleStrip.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoTriangleStripSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const StateCoordinates coordinates(state);
    const Range range = getRange(state);
    FaceList list;
    int triangle = 0;
    forEachRun(numVertices, range.count, [&](int run, int first, int count) {
        addStrip(list, coordinates, count, run, triangle, [&](int i) {
            return ShapeCorner{range.first + first + i, range.first + first + i, first + i};
        });
    });
    buildFaces(list, state, nullptr, geometry);
}

int SoTriangleStripSet::countCoordinates(int available) const
{
    return countInRuns(numVertices, available);
}
