#include <vexel/nodes/SoQuadMesh.h>

#include <algorithm>

#include <vexel/nodes/detail/FaceList.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoQuadMesh::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const Range range = getRange(state);
    const int width = verticesPerRow.getValue();
    FaceList list;
    const int numRows = width > 0 ? range.count / width : 0;
    const auto corner = [&](int i) { return ShapeCorner{range.first + i, range.first + i, i}; };
    for (int row = 0; row + 1 < numRows; ++row) {
        for (int column = 0; column + 1 < width; ++column) {
            const int at = row * width + column;
            list.corners.insert(list.corners.end(),
                                {corner(at), corner(at + width), corner(at + width + 1), corner(at + 1)});
            list.endFace({row * (width - 1) + column, row});
        }
    }
    buildFaces(list, state, nullptr, geometry);
}

int SoQuadMesh::countCoordinates(int available) const
{
    const int width = verticesPerRow.getValue();
    if (width < 1)
        return 0;
    return std::clamp(verticesPerColumn.getValue(), 0, available / width) * width;
}
