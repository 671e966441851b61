#include <vexel/nodes/SoIndexedTriangleSet.h>

#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoIndexedTriangleSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const StateCoordinates coordinates(state);
    const int num = coordIndex.getNum();
    const int* indices = coordIndex.getValues();
    FaceList list;
    list.corners.reserve(static_cast<std::size_t>(num));
    ShapeCorner corners[3];
    int filled = 0;
    int running = 0;
    int triangle = 0;
    for (int i = 0; i < num; ++i) {
        if (indices[i] < 0) {
            filled = 0;
            continue;
        }
        corners[filled++] = {indices[i], i, running++};
        if (filled == 3) {
            list.addTriangle(coordinates, corners[0], corners[1], corners[2], {triangle, triangle});
            ++triangle;
            filled = 0;
        }
    }
    buildFaces(list, state, this, geometry);
}
