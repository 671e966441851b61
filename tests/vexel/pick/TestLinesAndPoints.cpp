#include <gtest/gtest.h>

#include "PickShapes.h"

#include <cmath>

#include <vexel/render/RenderSurroundings.h>

namespace vexel {
namespace {

PickScene::Item addShape(PickScene& scene, RenderPrimitive primitive, std::vector<SbVec3f> positions,
                         const SbMatrix& matrix = SbMatrix())
{
    PickItem item;
    item.geometry = shapeOf(primitive, std::move(positions));
    item.matrix = matrix;
    return scene.add(item);
}

TEST(LinesAndPoints, RadiusCountsInPixels)
{
    PickScene scene;
    addShape(scene, RenderPrimitive::Points, {SbVec3f(0, 0, 0)});
    // The point is seen at pixel (50, 50).
    EXPECT_TRUE(scene.closest(PickQuery::atPixel(flatView(), 53.9f, 50, 4)));
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(flatView(), 54.1f, 50, 4)));
    EXPECT_TRUE(scene.closest(PickQuery::atPixel(flatView(), 52.8f, 47.2f, 4)));
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(flatView(), 53.5f, 46.5f, 4)));
}

TEST(LinesAndPoints, WhatIsDrawnLargerThanTheRadiusIsHitWhereItIsSeen)
{
    PickScene scene;
    PickItem item;
    item.geometry = shapeOf(RenderPrimitive::Points, {SbVec3f(0, 0, 0)});
    item.pixelSize = 20;
    scene.add(item);
    EXPECT_TRUE(scene.closest(PickQuery::atPixel(flatView(), 58, 50, 1)));
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(flatView(), 62, 50, 1)));
}

TEST(LinesAndPoints, LineHitTellsWhereItIs)
{
    PickScene scene;
    const auto item =
        addShape(scene, RenderPrimitive::Lines,
                 {SbVec3f(9, 9, 9), SbVec3f(9, 9, 8), SbVec3f(0, 0, 0), SbVec3f(4, 0, 0)}, placed(-2, 0.5f, 0));
    const auto hit = scene.closest(downAt(-1, 0.6f, 0.2f));
    ASSERT_TRUE(hit);
    EXPECT_EQ(item, hit->item);
    EXPECT_EQ(1u, hit->primitive);
    EXPECT_NEAR(0.75f, hit->weights[0], 1e-4f);
    EXPECT_NEAR(0.25f, hit->weights[1], 1e-4f);
    EXPECT_TRUE(hit->point.equals(SbVec3f(-1, 0.5f, 0), 1e-4f));
    EXPECT_NEAR(100, hit->distance, 1e-3f);
}

TEST(LinesAndPoints, PerspectiveShortensTheFarHalf)
{
    PickScene scene;
    // Seen from x = -0.5 of the half picture at depth 2 to +0.1 at depth 10.
    addShape(scene, RenderPrimitive::Lines, {SbVec3f(-1, 0, -2), SbVec3f(1, 0, -10)});
    // The middle of the line, (0, 0, -6), is seen in the middle of the picture.
    const auto hit = scene.closest(PickQuery::atPixel(deepView(), 50, 51, 2));
    ASSERT_TRUE(hit);
    EXPECT_TRUE(hit->point.equals(SbVec3f(0, 0, -6), 1e-3f));
    EXPECT_NEAR(0.5f, hit->weights[1], 1e-4f);
}

TEST(LinesAndPoints, LinesThatPassTheViewerAreHitInFrontOnly)
{
    PickScene scene;
    addShape(scene, RenderPrimitive::Lines, {SbVec3f(0.5f, 0, -10), SbVec3f(0.5f, 0, 10)});
    const auto hit = scene.closest(PickQuery::atPixel(deepView(), 70, 50, 1));
    ASSERT_TRUE(hit);
    EXPECT_NEAR(-1.25f, hit->point[2], 0.1f);
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(deepView(), 40, 50, 1)));
}

TEST(LinesAndPoints, DepthDecidesBetweenSurfacesLinesAndPoints)
{
    PickScene scene;
    const auto point = addShape(scene, RenderPrimitive::Points, {SbVec3f(0, 0, 2)});
    const auto line = addShape(scene, RenderPrimitive::Lines, {SbVec3f(-1, 0, 1), SbVec3f(1, 0, 1)});
    PickItem surface;
    surface.geometry = squareShape();
    const auto square = scene.add(surface);
    const auto behind = addShape(scene, RenderPrimitive::Points, {SbVec3f(0, 0, -1)});
    const std::vector<PickHit> hits = scene.all(downAt(0.01f, 0, 0.1f));
    ASSERT_EQ(4u, hits.size());
    const PickScene::Item expected[] = {point, line, square, behind};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(expected[i], hits[i].item);
    scene.remove(point);
    EXPECT_EQ(line, scene.closest(downAt(0.01f, 0, 0.1f))->item);
    scene.setMatrix(line, placed(0, 3, 0));
    EXPECT_EQ(square, scene.closest(downAt(0.01f, 0, 0.1f))->item);
    EXPECT_EQ(line, scene.closest(downAt(0.01f, 3.05f, 0.1f))->item);
}

TEST(LinesAndPoints, RaysWithoutEndReachFarAndNear)
{
    PickScene scene;
    addShape(scene, RenderPrimitive::Points,
             {SbVec3f(0, 0, 1e6f), SbVec3f(0, 0, 101), SbVec3f(0, 0, 99), SbVec3f(0, 0, -1e6f)});
    const std::vector<PickHit> hits = scene.all(downAt(0, 0, 0.1f));
    ASSERT_EQ(2u, hits.size());
    EXPECT_EQ(2u, hits[0].primitive);
    EXPECT_EQ(3u, hits[1].primitive);
}

TEST(LinesAndPoints, ClipPlanesHide)
{
    RenderSurroundings::Values values;
    values.clipPlanes = {SbVec4f(1, 0, 0, 0)};
    PickScene scene;
    PickItem item;
    item.geometry = shapeOf(RenderPrimitive::Lines, {SbVec3f(-1, 0, 0), SbVec3f(1, 0, 0)});
    item.surroundings = std::make_shared<const RenderSurroundings>(values);
    scene.add(item);
    EXPECT_TRUE(scene.closest(downAt(0.5f, 0, 0.1f)));
    EXPECT_FALSE(scene.closest(downAt(-0.5f, 0, 0.1f)));
}

TEST(LinesAndPoints, BrokenCoordinatesAreMissed)
{
    const float nan = std::nanf("");
    PickScene scene;
    addShape(scene, RenderPrimitive::Points, {SbVec3f(nan, 0, 0), SbVec3f(0, 0, 0), SbVec3f(INFINITY, 0, 0)});
    addShape(scene, RenderPrimitive::Lines, {SbVec3f(0, 0, 0), SbVec3f(nan, 1, 0), SbVec3f(0, 0, 3)});
    addShape(scene, RenderPrimitive::Lines, {});
    const std::vector<PickHit> hits = scene.all(downAt(0, 0, 0.1f));
    ASSERT_EQ(1u, hits.size());
    EXPECT_EQ(1u, hits[0].primitive);
}

TEST(LinesAndPoints, EveryPointOfALongLineIsFound)
{
    std::vector<SbVec3f> spiral;
    for (int i = 0; i < 5000; ++i) {
        const float angle = 0.05f * static_cast<float>(i);
        spiral.emplace_back(angle * std::cos(angle), angle * std::sin(angle), 0.0f);
        if (i > 0 && i < 4999)
            spiral.push_back(spiral.back());
    }
    PickScene scene;
    addShape(scene, RenderPrimitive::Lines, spiral);
    for (std::uint32_t primitive = 20; primitive < 4998; primitive += 31) {
        const SbVec3f middle = (spiral[2 * primitive] + spiral[2 * primitive + 1]) * 0.5f;
        const auto hit = scene.closest(downAt(middle[0], middle[1], 0.01f));
        ASSERT_TRUE(hit) << primitive;
        EXPECT_EQ(primitive, hit->primitive);
    }
}

} // namespace
} // namespace vexel
