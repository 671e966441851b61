#include <vexel/nodes/SoFaceSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/FaceList.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoFaceSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const Range range = getRange(state);
    FaceList list;
    forEachRun(numVertices, range.count, [&](int run, int first, int count) {
        for (int i = first; i < first + count; ++i)
            list.corners.push_back({range.first + i, range.first + i, i});
        list.endFace({run, run});
    });
    buildFaces(list, state, nullptr, geometry);
}

int SoFaceSet::countCoordinates(int available) const
{
    return countInRuns(numVertices, available);
}
