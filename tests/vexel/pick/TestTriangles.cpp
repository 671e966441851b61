#include <gtest/gtest.h>

#include "PickShapes.h"

#include <cmath>
#include <random>

#include <vexel/base/SbRotation.h>
#include <vexel/render/RenderSurroundings.h>

namespace vexel {
namespace {

TEST(Triangles, AnEmptySceneHasNoHits)
{
    PickScene scene;
    EXPECT_FALSE(scene.closest(downAt(0, 0)));
    EXPECT_TRUE(scene.all(downAt(0, 0)).empty());
}

TEST(Triangles, HitTellsWhereItIs)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    item.matrix = placed(10, 0, 5, 2);
    item.tag = 42;
    const PickScene::Item number = scene.add(item);
    const auto hit = scene.closest(downAt(11, -1));
    ASSERT_TRUE(hit);
    EXPECT_EQ(number, hit->item);
    EXPECT_EQ(42u, hit->tag);
    EXPECT_EQ(0u, hit->primitive);
    EXPECT_TRUE(hit->point.equals(SbVec3f(11, -1, 5), 1e-4f));
    EXPECT_NEAR(95, hit->distance, 1e-3f);
    // The point in the shape's own space is (0.5, -0.5, 0).
    EXPECT_NEAR(0.25f, hit->weights[0], 1e-4f);
    EXPECT_NEAR(0.5f, hit->weights[1], 1e-4f);
    EXPECT_NEAR(0.25f, hit->weights[2], 1e-4f);
    EXPECT_EQ(1u, scene.closest(downAt(9, 1))->primitive);
    EXPECT_FALSE(scene.closest(downAt(7.9f, 0)));
}

TEST(Triangles, EdgesBetweenTrianglesHaveNoGaps)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    scene.add(item);
    for (int i = -99; i < 100; ++i) {
        const float place = static_cast<float>(i) / 100;
        EXPECT_TRUE(scene.closest(downAt(place, place))) << place;
    }
}

TEST(Triangles, AllHitsComeInOrder)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    for (const float z : {3.0f, -7.0f, 0.0f, 9.0f, -2.0f}) {
        item.matrix = placed(0, 0, z);
        item.tag = static_cast<std::uint64_t>(z + 100);
        scene.add(item);
    }
    const std::vector<PickHit> hits = scene.all(downAt(0.5f, 0.2f));
    ASSERT_EQ(5u, hits.size());
    const std::uint64_t expected[] = {109, 103, 100, 98, 93};
    for (std::size_t i = 0; i < hits.size(); ++i)
        EXPECT_EQ(expected[i], hits[i].tag);
    EXPECT_TRUE(hits[3].point.equals(SbVec3f(0.5f, 0.2f, -2), 1e-3f));
    EXPECT_EQ(109u, scene.closest(downAt(0.5f, 0.2f))->tag);
}

TEST(Triangles, TheRayHasABeginningAndAnEnd)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    for (const float z : {8.0f, 4.0f, 0.0f}) {
        item.matrix = placed(0, 0, z);
        scene.add(item);
    }
    const auto ray = PickQuery::alongRay(SbVec3f(0.5f, 0, 10), SbVec3f(0, 0, -3), 0, 3, 9);
    const std::vector<PickHit> hits = scene.all(ray);
    ASSERT_EQ(1u, hits.size());
    EXPECT_NEAR(6, hits[0].distance, 1e-4f);
}

TEST(Triangles, ItemsMoveChangeAndGo)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    const PickScene::Item first = scene.add(item);
    item.matrix = placed(0, 0, -5);
    const PickScene::Item second = scene.add(item);
    EXPECT_EQ(first, scene.closest(downAt(0.5f, 0))->item);
    scene.setMatrix(first, placed(5, 0, 0));
    EXPECT_EQ(second, scene.closest(downAt(0.5f, 0))->item);
    EXPECT_EQ(first, scene.closest(downAt(5.5f, 0))->item);
    scene.setGeometry(second,
                      shapeOf(RenderPrimitive::Triangles, {SbVec3f(20, 0, 0), SbVec3f(21, 0, 0), SbVec3f(20, 1, 0)}));
    EXPECT_FALSE(scene.closest(downAt(0.5f, 0)));
    EXPECT_EQ(second, scene.closest(downAt(20.2f, 0.2f))->item);
    scene.remove(first);
    EXPECT_FALSE(scene.closest(downAt(5.5f, 0)));
    item.matrix = SbMatrix();
    const PickScene::Item third = scene.add(item);
    EXPECT_EQ(third, scene.closest(downAt(0.5f, 0))->item);
}

TEST(Triangles, ClipPlanesHide)
{
    RenderSurroundings::Values values;
    values.clipPlanes = {SbVec4f(0, 0, -1, 1)}; // hides what is above z = 1
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    item.surroundings = std::make_shared<const RenderSurroundings>(values);
    item.matrix = placed(0, 0, 2);
    scene.add(item);
    item.matrix = placed(0, 0, -2);
    const PickScene::Item below = scene.add(item);
    EXPECT_EQ(below, scene.closest(downAt(0.3f, 0))->item);
    EXPECT_EQ(1u, scene.all(downAt(0.3f, 0)).size());
}

TEST(Triangles, BrokenShapesAndMatricesAreMissedWithoutHarm)
{
    const float nan = std::nanf("");
    const float inf = INFINITY;
    PickScene scene;
    PickItem item;
    item.geometry =
        shapeOf(RenderPrimitive::Triangles,
                {SbVec3f(nan, 0, 0), SbVec3f(1, 0, 0), SbVec3f(0, 1, inf), SbVec3f(-1, -1, 0), SbVec3f(1, 1, 0)},
                {0, 1, 2, 1, 1, 1, 3, 4, 99, 0, 0, 0, 1, 3, 4});
    const PickScene::Item broken = scene.add(item);
    item.geometry = shapeOf(RenderPrimitive::Triangles, {});
    scene.add(item);
    item.geometry = squareShape();
    item.matrix = placed(0, 0, 0, 0);
    scene.add(item);
    item.matrix = placed(nan, inf, 0);
    scene.add(item);
    item.matrix = SbMatrix();
    item.matrix[1][1] = 0;
    scene.add(item);
    const auto hit = scene.closest(downAt(0.5f, -0.1f));
    ASSERT_TRUE(hit);
    EXPECT_EQ(broken, hit->item);
    EXPECT_EQ(4u, hit->primitive);
    EXPECT_EQ(1u, scene.all(downAt(0.5f, -0.1f)).size());
}

TEST(Triangles, QueriesWithoutADirectionHitNothing)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    scene.add(item);
    EXPECT_FALSE(scene.closest(PickQuery::alongRay(SbVec3f(0, 0, 1), SbVec3f(0, 0, 0), 1)));
    RenderView flat = flatView();
    flat.projection[2][2] = 0;
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(flat, 50, 50, 1)));
    EXPECT_TRUE(scene.all(PickQuery::atPixel(RenderView(), 0, 0, 1)).empty());
}

TEST(Triangles, PixelsLeadToWhatIsSeenThere)
{
    PickScene scene;
    PickItem item;
    item.geometry = squareShape();
    item.matrix = placed(3, 2, -10);
    scene.add(item);
    // In a view of 90 degrees, (3, 2) at depth 10 is at (0.3, 0.2) of the half picture.
    const auto hit = scene.closest(PickQuery::atPixel(deepView(), 65, 60, 5));
    ASSERT_TRUE(hit);
    EXPECT_TRUE(hit->point.equals(SbVec3f(3, 2, -10), 1e-3f));
    EXPECT_FALSE(scene.closest(PickQuery::atPixel(deepView(), 55, 60, 1)));
    RenderView half = deepView();
    half.viewport = {200, 50, 100, 100};
    EXPECT_TRUE(scene.closest(PickQuery::atPixel(half, 265, 110, 5)));
}

/** Against a plain test of every triangle. */
TEST(Triangles, AgreesWithTryingAllTriangles)
{
    std::mt19937 random(977);
    const auto number = [&](float reach) { return std::uniform_real_distribution<float>(-reach, reach)(random); };
    PickScene scene;
    std::vector<SbVec3f> corners;
    for (int i = 0; i < 300; ++i) {
        const SbVec3f middle(number(5), number(5), number(5));
        PickItem item;
        item.geometry = shapeOf(RenderPrimitive::Triangles,
                                {SbVec3f(number(1), number(1), number(1)), SbVec3f(number(1), number(1), number(1)),
                                 SbVec3f(number(1), number(1), number(1))});
        item.matrix.setTransform(middle, SbRotation(SbVec3f(1, number(1), number(1)), number(3)), SbVec3f(1, 2, 0.7f));
        item.tag = i;
        scene.add(item);
        for (const SbVec3f& position : item.geometry->arrays().positions) {
            corners.emplace_back();
            item.matrix.multVecMatrix(position, corners.back());
        }
    }
    const auto side = [](const SbVec3f& a, const SbVec3f& b, float x, float y) {
        return (b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0]);
    };
    std::size_t total = 0;
    for (int i = 0; i < 500; ++i) {
        const float x = number(5);
        const float y = number(5);
        std::size_t expected = 0;
        for (std::size_t t = 0; t < corners.size(); t += 3) {
            const float s[] = {side(corners[t], corners[t + 1], x, y), side(corners[t + 1], corners[t + 2], x, y),
                               side(corners[t + 2], corners[t], x, y)};
            expected += (s[0] > 0 && s[1] > 0 && s[2] > 0) || (s[0] < 0 && s[1] < 0 && s[2] < 0);
        }
        const std::vector<PickHit> hits = scene.all(downAt(x, y));
        EXPECT_EQ(expected, hits.size()) << x << ' ' << y;
        total += hits.size();
        if (!hits.empty()) {
            EXPECT_EQ(hits.front().tag, scene.closest(downAt(x, y))->tag);
        }
    }
    EXPECT_GT(total, 500u);
}

} // namespace
} // namespace vexel
