#include <vexel/nodes/SoIndexedTriangleStripSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/nodes/detail/TriangleStrip.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoIndexedTriangleStripSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const StateCoordinates coordinates(state);
    const int* indices = coordIndex.getValues();
    FaceList list;
    int triangle = 0;
    forEachIndexRun(coordIndex, [&](int run, int first, int count) {
        addStrip(list, coordinates, count, run, triangle, [&](int i) {
            return ShapeCorner{indices[first + i], first + i, first + i - run};
        });
    });
    buildFaces(list, state, this, geometry);
}
