#include <vexel/nodes/SoLineSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/LineBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoLineSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const Range range = getRange(state);
    LineBuilder builder(state, geometry, nullptr, static_cast<std::size_t>(range.count));
    std::vector<ShapeCorner> corners;
    forEachRun(numVertices, range.count, [&](int run, int first, int count) {
        corners.clear();
        for (int i = first; i < first + count; ++i)
            corners.push_back({range.first + i, range.first + i, i});
        builder.addLine(corners, run);
    });
    builder.finish();
}

int SoLineSet::countCoordinates(int available) const
{
    return countInRuns(numVertices, available);
}
