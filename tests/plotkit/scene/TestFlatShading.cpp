#include "RecordingOutput.h"

#include <plotkit/picture/FlatShading.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(FlatShading, coversASurfaceWithPartsOfOneColor)
{
    RecordingSink sink;
    FlatShading shading(sink, 0.1f);
    shading.shadedPolygon({{{0, 0}, {0, 0, 0, 1}}, {{10, 0}, {1, 0, 0, 1}}, {{0, 10}, {0, 0.5f, 0, 1}}});
    double area = 0;
    for (const RecordingSink::Polygon& polygon : sink.polygons) {
        area += polygon.area();
        for (const ShadedCorner& corner : polygon.corners) {
            // The colour that the surface has there.
            EXPECT_NEAR(corner.point.x / 10, double(corner.color.red), 0.1);
            EXPECT_NEAR(corner.point.y / 20, double(corner.color.green), 0.1);
        }
    }
    EXPECT_NEAR(50, area, 1e-4);
    EXPECT_GT(sink.polygons.size(), 30u);
    EXPECT_LT(sink.polygons.size(), 200u);
}

TEST(FlatShading, leavesWhatHasOneColor)
{
    RecordingSink sink;
    FlatShading shading(sink);
    const PageColor red{1, 0, 0, 1};
    shading.shadedPolygon({{{0, 0}, red}, {{1, 0}, red}, {{1, 1}, red}, {{0, 1}, red}});
    ASSERT_EQ(1u, sink.polygons.size());
    EXPECT_EQ(4u, sink.polygons[0].corners.size());
}

TEST(FlatShading, endsAlsoForColorsThatAreNoNumbers)
{
    RecordingSink sink;
    FlatShading shading(sink);
    const float none = std::nanf("");
    shading.shadedPolygon({{{0, 0}, {none, 0, 0, 1}}, {{1, 0}, {0, none, 0, 1}}, {{1, 1}, {1, 0, none, 1}}});
    EXPECT_LT(sink.polygons.size(), 5000u);
}

TEST(FlatShading, paintsTheGroundInStripes)
{
    RecordingSink sink;
    FlatShading shading(sink, 0.25f);
    PageLayout page;
    page.picture = {10, 20, 100, 80};
    shading.begin(page);
    shading.ground({0, 0, 0, 1}, {1, 1, 1, 1});
    EXPECT_EQ(32u, sink.polygons.size()) << "eight in a step";
    double area = 0;
    for (const RecordingSink::Polygon& polygon : sink.polygons)
        area += polygon.area();
    EXPECT_NEAR(8000, area, 1e-3);
}

} // namespace
