#include <vexel/nodes/SoIndexedLineSet.h>

#include <vexel/nodes/detail/CoordinateRuns.h>
#include <vexel/nodes/detail/LineBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoIndexedLineSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    LineBuilder builder(state, geometry, this, static_cast<std::size_t>(coordIndex.getNum()));
    std::vector<ShapeCorner> corners;
    forEachIndexRun(coordIndex, [&](int run, int first, int count) {
        corners.clear();
        for (int i = first; i < first + count; ++i)
            corners.push_back({coordIndex[i], i, i - run});
        builder.addLine(corners, run);
    });
    builder.finish();
}
