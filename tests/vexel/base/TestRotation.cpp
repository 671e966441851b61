#include "Random.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float Pi = 3.14159265f;

SbVec3f turned(const SbRotation& rotation, const SbVec3f& v)
{
    SbVec3f result;
    rotation.multVec(v, result);
    return result;
}

} // namespace

TEST(Rotation, DefaultTurnsNothing)
{
    EXPECT_EQ(turned(SbRotation(), SbVec3f(1, 2, 3)), SbVec3f(1, 2, 3));
    EXPECT_EQ(SbRotation(SbVec3f(), 1.0f), SbRotation());
    EXPECT_EQ(SbRotation(0, 0, 0, 0), SbRotation());
    EXPECT_EQ(SbRotation(NAN, 0, 0, 1), SbRotation());
}

TEST(Rotation, AxisAndAngleAreCounterClockwise)
{
    const SbRotation quarter(SbVec3f(0, 0, 5), Pi / 2);
    EXPECT_TRUE(turned(quarter, SbVec3f(1, 0, 0)).equals(SbVec3f(0, 1, 0), 1e-6f));
    EXPECT_TRUE(turned(quarter.inverse(), SbVec3f(1, 0, 0)).equals(SbVec3f(0, -1, 0), 1e-6f));
}

TEST(Rotation, AnswersAxisAndAngle)
{
    SbVec3f axis;
    float angle;
    SbRotation(SbVec3f(0, 3, 4), 5.0f).getValue(axis, angle);
    EXPECT_TRUE(axis.equals(SbVec3f(0, 0.6f, 0.8f), 1e-6f));
    EXPECT_NEAR(angle, 5.0f, 1e-5f);
    SbRotation().getValue(axis, angle);
    EXPECT_EQ(axis, SbVec3f(0, 0, 1));
    EXPECT_EQ(angle, 0);
}

TEST(Rotation, SmallAnglesKeepTheirPrecision)
{
    SbVec3f axis;
    float angle;
    SbRotation(SbVec3f(0, 1, 0), 1e-5f).getValue(axis, angle);
    EXPECT_NEAR(angle, 1e-5f, 1e-11f);
}

TEST(Rotation, ProductAppliesTheLeftFirst)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        const SbRotation a = random.rotation();
        const SbRotation b = random.rotation();
        const SbVec3f v = random.vec(1);
        ASSERT_TRUE(turned(a * b, v).equals(turned(b, turned(a, v)), 1e-5f));
    }
}

TEST(Rotation, AgreesWithItsMatrix)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        const SbRotation a = random.rotation();
        SbMatrix matrix;
        a.getValue(matrix);
        const SbVec3f v = random.vec(1);
        SbVec3f byMatrix;
        matrix.multVecMatrix(v, byMatrix);
        ASSERT_TRUE(turned(a, v).equals(byMatrix, 1e-5f));
        ASSERT_TRUE(SbRotation(matrix).equals(a, 1e-6f));
        ASSERT_TRUE((a * a.inverse()).equals(SbRotation(), 1e-6f));
    }
}

TEST(Rotation, FromMatrixOfHalfTurns)
{
    for (const SbVec3f& axis : {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(0, 0, 1), SbVec3f(1, 1, 1)}) {
        const SbRotation half(axis, Pi);
        SbMatrix matrix;
        half.getValue(matrix);
        EXPECT_TRUE(SbRotation(matrix).equals(half, 1e-6f));
    }
}

TEST(Rotation, FromOneDirectionToAnother)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        SbVec3f from = random.vec(1);
        SbVec3f to = i % 2 ? random.vec(1) : -from;
        const SbRotation rotation(from, to);
        from.normalize();
        to.normalize();
        ASSERT_TRUE(turned(rotation, from).equals(to, 1e-5f));
    }
    EXPECT_EQ(SbRotation(SbVec3f(1, 0, 0), SbVec3f(2, 0, 0)), SbRotation());
    EXPECT_EQ(SbRotation(SbVec3f(), SbVec3f(1, 0, 0)), SbRotation());
}

TEST(Rotation, SlerpGoesTheShorterWayAtSteadySpeed)
{
    const SbVec3f axis(0, 0, 1);
    const SbRotation a(axis, 0.2f);
    const SbRotation b(axis, 1.2f);
    const SbRotation opposite(-b[0], -b[1], -b[2], -b[3]);
    for (const float t : {0.0f, 0.25f, 0.5f, 1.0f}) {
        EXPECT_TRUE(SbRotation::slerp(a, b, t).equals(SbRotation(axis, 0.2f + t), 1e-6f));
        EXPECT_TRUE(SbRotation::slerp(a, opposite, t).equals(SbRotation(axis, 0.2f + t), 1e-6f));
    }
    EXPECT_TRUE(SbRotation::slerp(a, a, 0.5f).equals(a, 1e-6f));
}

TEST(Rotation, ScaleAngle)
{
    SbRotation r(SbVec3f(1, 2, 3), 0.5f);
    r.scaleAngle(-3);
    EXPECT_TRUE(r.equals(SbRotation(SbVec3f(1, 2, 3), -1.5f), 1e-6f));
}

TEST(Rotation, OppositeQuaternionsAreEqual)
{
    const SbRotation a(SbVec3f(1, 2, 3), 0.5f);
    EXPECT_EQ(a, SbRotation(-a[0], -a[1], -a[2], -a[3]));
    EXPECT_NE(a, a.inverse());
}
