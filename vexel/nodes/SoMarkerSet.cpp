#include <vexel/nodes/SoMarkerSet.h>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/LineBuilder.h>
#include <vexel/nodes/detail/MarkerBitmaps.h>
#include <vexel/nodes/detail/ScreenFrame.h>
#include <vexel/nodes/detail/StateCoordinates.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

int SoMarkerSet::getNumPixels(int marker)
{
    return markerBitmap(marker).size;
}

bool SoMarkerSet::hasPixel(int marker, int column, int row)
{
    return (markerBitmap(marker).rows[static_cast<std::size_t>(row)] >> column & 1) != 0;
}

int SoMarkerSet::markerAt(int point) const
{
    const int num = markerIndex.getNum();
    return num == 0 ? 0 : markerIndex[point < num ? point : num - 1];
}

void SoMarkerSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const Range range = getRange(state);
    LineBuilder builder(state, geometry, nullptr, static_cast<std::size_t>(range.count));
    geometry.markers.reserve(static_cast<std::size_t>(range.count));
    for (int i = 0; i < range.count; ++i) {
        const int marker = markerAt(i);
        if (marker < 0)
            continue;
        builder.addPoint({range.first + i, range.first + i, i});
        geometry.markers.push_back(marker);
    }
    builder.finish();
}

SbBox3f SoMarkerSet::computeBoundingBox(const SoState& state) const
{
    const StateCoordinates coordinates(state);
    const Range range = getRange(state);
    ScreenFrame frame(state);
    SbBox3f box;
    for (int i = 0; i < range.count; ++i) {
        const int marker = markerAt(i);
        if (marker < 0)
            continue;
        const SbVec3f point = coordinates[range.first + i];
        box.extendBy(point);
        // Without a camera nothing is known of pixels.
        if (!state->camera)
            continue;
        const float half = 0.5f * static_cast<float>(markerBitmap(marker).size);
        frame.moveTo(point);
        for (const float x : {-half, half}) {
            for (const float y : {-half, half})
                box.extendBy(point + frame.at(x, y));
        }
    }
    return box;
}
