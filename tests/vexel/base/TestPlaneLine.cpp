#include "Random.h"

#include <vexel/base/SbLine.h>
#include <vexel/base/SbPlane.h>

#include <gtest/gtest.h>

TEST(Plane, FromThreePointsIsCounterClockwise)
{
    const SbPlane plane(SbVec3f(0, 0, 2), SbVec3f(1, 0, 2), SbVec3f(0, 1, 2));
    EXPECT_EQ(plane, SbPlane(SbVec3f(0, 0, 1), 2));
    EXPECT_TRUE(plane.isInHalfSpace(SbVec3f(5, 5, 2.5f)));
    EXPECT_FALSE(plane.isInHalfSpace(SbVec3f(5, 5, 1.5f)));
    EXPECT_EQ(plane.getDistance(SbVec3f(0, 0, -1)), -3);
}

TEST(Plane, NormalIsMadeUnitLength)
{
    const SbPlane plane(SbVec3f(0, 5, 0), SbVec3f(7, 3, 7));
    EXPECT_EQ(plane.getNormal(), SbVec3f(0, 1, 0));
    EXPECT_EQ(plane.getDistanceFromOrigin(), 3);
    SbPlane moved = plane;
    moved.offset(-1);
    EXPECT_EQ(moved, SbPlane(SbVec3f(0, 1, 0), 2));
}

TEST(Plane, MeetsLines)
{
    const SbPlane plane(SbVec3f(0, 0, 1), 2);
    SbVec3f point(9, 9, 9);
    EXPECT_TRUE(plane.intersect(SbLine(SbVec3f(1, 1, 5), SbVec3f(1, 2, 4)), point));
    EXPECT_TRUE(point.equals(SbVec3f(1, 4, 2), 1e-5f));
    EXPECT_FALSE(plane.intersect(SbLine(SbVec3f(0, 0, 0), SbVec3f(1, 1, 0)), point));
    EXPECT_TRUE(point.equals(SbVec3f(1, 4, 2), 1e-5f));
}

TEST(Plane, TransformMovesItsPoints)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        const SbMatrix m = random.transform();
        SbVec3f p[3] = {random.vec(1), random.vec(1), random.vec(1)};
        if ((p[1] - p[0]).cross(p[2] - p[0]).length() < 0.1f)
            continue;
        SbPlane plane(p[0], p[1], p[2]);
        SbVec3f front = p[0] + plane.getNormal();
        plane.transform(m);
        for (SbVec3f& v : p) {
            m.multVecMatrix(v, v);
            ASSERT_NEAR(plane.getDistance(v), 0, 1e-3f);
        }
        m.multVecMatrix(front, front);
        ASSERT_TRUE(plane.isInHalfSpace(front));
    }
    SbPlane plane(SbVec3f(1, 2, 3), 4);
    const SbPlane before = plane;
    SbMatrix singular;
    singular.setScale(0);
    plane.transform(singular);
    EXPECT_EQ(plane, before);
}

TEST(Line, ClosestPoint)
{
    const SbLine line(SbVec3f(0, 1, 0), SbVec3f(5, 1, 0));
    EXPECT_EQ(line.getClosestPoint(SbVec3f(3, 7, 2)), SbVec3f(3, 1, 0));
    const SbLine point(SbVec3f(1, 1, 1), SbVec3f(1, 1, 1));
    EXPECT_EQ(point.getClosestPoint(SbVec3f(3, 7, 2)), SbVec3f(1, 1, 1));
}

TEST(Line, ClosestPointsOfTwoLines)
{
    const SbLine alongX(SbVec3f(0, 0, 0), SbVec3f(1, 0, 0));
    const SbLine alongY(SbVec3f(4, -3, 2), SbVec3f(4, 9, 2));
    SbVec3f a, b;
    EXPECT_TRUE(alongX.getClosestPoints(alongY, a, b));
    EXPECT_TRUE(a.equals(SbVec3f(4, 0, 0), 1e-5f));
    EXPECT_TRUE(b.equals(SbVec3f(4, 0, 2), 1e-5f));
    EXPECT_FALSE(alongX.getClosestPoints(SbLine(SbVec3f(0, 1, 0), SbVec3f(-1, 1, 0)), a, b));
}
