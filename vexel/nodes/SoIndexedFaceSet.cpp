#include <vexel/nodes/SoIndexedFaceSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoIndexedFaceSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const StateCoordinates coordinates(state);
    const int* indices = coordIndex.getValues();
    FaceList list;
    list.corners.reserve(static_cast<std::size_t>(coordIndex.getNum()));
    forEachIndexRun(coordIndex, [&](int run, int first, int count) {
        for (int i = first; i < first + count; ++i) {
            if (coordinates.contains(indices[i]))
                list.corners.push_back({indices[i], i, i - run});
        }
        list.endFace({run, run});
    });
    buildFaces(list, state, this, geometry);
}
