#include "Random.h"

#include <vexel/base/SbBox2f.h>
#include <vexel/base/SbBox2i32.h>
#include <vexel/base/SbBox2s.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbBox3i32.h>
#include <vexel/base/SbBox3s.h>
#include <vexel/base/SbXfBox3f.h>

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>
#include <vector>

template <class Box>
class BoxTest : public testing::Test {
};

using AllBoxes = testing::Types<SbBox2s, SbBox2i32, SbBox2f, SbBox3s, SbBox3i32, SbBox3f>;
TYPED_TEST_SUITE(BoxTest, AllBoxes, );

TYPED_TEST(BoxTest, GrowsFromEmpty)
{
    using Vec = std::decay_t<decltype(TypeParam().getMin())>;
    using C = typename Vec::Component;
    const C low[] = {-2, -4, -6};
    const C high[] = {4, 4, 4};
    TypeParam box;
    EXPECT_TRUE(box.isEmpty());
    EXPECT_EQ(box.getSize(), Vec());
    EXPECT_FALSE(box.intersect(Vec()));
    box.extendBy(Vec(low));
    EXPECT_FALSE(box.isEmpty());
    EXPECT_TRUE(box.intersect(Vec(low)));
    box.extendBy(Vec(high));
    EXPECT_EQ(box, TypeParam(Vec(low), Vec(high)));
    EXPECT_EQ(box.getSize(), Vec(high) - Vec(low));
    EXPECT_EQ(box.getCenter()[0], 1);
    EXPECT_EQ(box.getCenter()[1], 0);
    box.extendBy(TypeParam());
    EXPECT_EQ(box.getMin(), Vec(low));
    box.makeEmpty();
    EXPECT_EQ(box, TypeParam());
}

TEST(Box, TouchingBoxesIntersect)
{
    const SbBox2s box(SbVec2s(0, 0), SbVec2s(10, 10));
    EXPECT_TRUE(box.intersect(SbBox2s(SbVec2s(10, 10), SbVec2s(20, 20))));
    EXPECT_FALSE(box.intersect(SbBox2s(SbVec2s(11, 0), SbVec2s(20, 20))));
    EXPECT_FALSE(box.intersect(SbBox2s()));
    EXPECT_TRUE(box.intersect(SbBox2s(SbVec2s(2, 2), SbVec2s(3, 3))));
}

TEST(Box, ExtendPassesOverNotANumber)
{
    SbBox3f box(SbVec3f(0, 0, 0), SbVec3f(1, 1, 1));
    box.extendBy(SbVec3f(NAN, 2, NAN));
    EXPECT_EQ(box, SbBox3f(SbVec3f(0, 0, 0), SbVec3f(1, 2, 1)));
}

TEST(Box, Volume)
{
    EXPECT_EQ(SbBox3f(SbVec3f(0, 0, 0), SbVec3f(2, 3, 4)).getVolume(), 24);
    EXPECT_EQ(SbBox3f(SbVec3f(0, 0, 0), SbVec3f(2, 0, 4)).getVolume(), 0);
    EXPECT_EQ(SbBox3f().getVolume(), 0);
    EXPECT_EQ(SbBox3s(SbVec3s(-30000, 0, 0), SbVec3s(30000, 1, 1)).getVolume(), 60000);
}

TEST(Box, TransformHoldsAllMovedPoints)
{
    Random random;
    for (int i = 0; i < 500; ++i) {
        const SbMatrix m = random.transform();
        SbBox3f box;
        std::vector<SbVec3f> points;
        for (int k = 0; k < 20; ++k) {
            points.push_back(random.vec(3));
            box.extendBy(points.back());
        }
        box.transform(m);
        const SbBox3f grown(box.getMin() - SbVec3f(1e-4f, 1e-4f, 1e-4f), box.getMax() + SbVec3f(1e-4f, 1e-4f, 1e-4f));
        for (SbVec3f p : points) {
            m.multVecMatrix(p, p);
            ASSERT_TRUE(grown.intersect(p));
        }
    }
}

TEST(Box, TransformOfEmptyStaysEmpty)
{
    SbBox3f box;
    box.transform(Random().transform());
    EXPECT_EQ(box, SbBox3f());
}

TEST(XfBox, ProjectsToTheWorld)
{
    SbMatrix m;
    m.setTransform(SbVec3f(10, 0, 0), SbRotation(SbVec3f(0, 0, 1), 0.785398163f), SbVec3f(2, 2, 2));
    const SbXfBox3f box(SbBox3f(SbVec3f(-1, -1, -1), SbVec3f(1, 1, 1)), m);
    const float reach = 2 * std::sqrt(2.0f);
    EXPECT_TRUE(box.project().getMax().equals(SbVec3f(10 + reach, reach, 2), 1e-5f));
    EXPECT_TRUE(box.getCenter().equals(SbVec3f(10, 0, 0), 1e-6f));
    EXPECT_NEAR(box.getVolume(), 64, 1e-4f);
    EXPECT_TRUE(box.intersect(SbVec3f(12.5f, 0, 0)));
    EXPECT_FALSE(box.intersect(SbVec3f(12, 2, 0)));
}

TEST(XfBox, ExtendKeepsTheTighterSpace)
{
    SbMatrix m;
    m.setRotate(SbRotation(SbVec3f(0, 0, 1), 0.785398163f));
    SbXfBox3f box(SbBox3f(SbVec3f(-10, -1, -1), SbVec3f(10, 1, 1)), m);
    box.extendBy(SbBox3f(SbVec3f(-0.1f, -0.1f, -0.1f), SbVec3f(0.1f, 0.1f, 0.1f)));
    EXPECT_EQ(box.getTransform(), m);
    EXPECT_TRUE(box.getSize().equals(SbVec3f(20, 2, 2), 1e-4f));

    SbXfBox3f small(SbVec3f(-0.1f, -0.1f, -0.1f), SbVec3f(0.1f, 0.1f, 0.1f));
    small.extendBy(box);
    EXPECT_EQ(small, box);
}

TEST(XfBox, ExtendWithEmptyAndPoints)
{
    SbXfBox3f box;
    box.extendBy(SbXfBox3f());
    EXPECT_TRUE(box.isEmpty());
    EXPECT_TRUE(box.project().isEmpty());
    EXPECT_EQ(box.getCenter(), SbVec3f());
    box.extendBy(SbVec3f(1, 2, 3));
    EXPECT_EQ(box.getCenter(), SbVec3f(1, 2, 3));
    box.extendBy(SbVec3f(3, 2, 3));
    EXPECT_EQ(box.getSize(), SbVec3f(2, 0, 0));
}

TEST(XfBox, ExtendWithSingularTransformsUsesTheWorld)
{
    SbMatrix flat;
    flat.setScale(SbVec3f(2, 2, 0));
    SbXfBox3f box(SbBox3f(SbVec3f(-1, -1, -1), SbVec3f(1, 1, 1)), flat);
    EXPECT_FALSE(box.intersect(SbVec3f(0, 0, 0)));
    box.extendBy(SbVec3f(0, 0, 5));
    EXPECT_EQ(box.project(), SbBox3f(SbVec3f(-2, -2, 0), SbVec3f(2, 2, 5)));
}
