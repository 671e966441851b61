#include "Random.h"

#include <vexel/base/SbLine.h>
#include <vexel/base/SbVec4f.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr float Pi = 3.14159265f;

SbMatrix translation(float x, float y, float z)
{
    SbMatrix m;
    m.setTranslate(SbVec3f(x, y, z));
    return m;
}

SbVec3f moved(const SbMatrix& m, const SbVec3f& point)
{
    SbVec3f result;
    m.multVecMatrix(point, result);
    return result;
}

struct Parts {
    explicit Parts(const SbMatrix& m) { m.getTransform(t, r, s, so); }
    SbMatrix compose() const
    {
        SbMatrix m;
        m.setTransform(t, r, s, so);
        return m;
    }
    SbVec3f t;
    SbRotation r;
    SbVec3f s;
    SbRotation so;
};

} // namespace

TEST(Matrix, TranslationStandsInTheLastRow)
{
    const SbMatrix m = translation(1, 2, 3);
    EXPECT_EQ(m[3][0], 1);
    EXPECT_EQ(m[3][2], 3);
    EXPECT_EQ(moved(m, SbVec3f(10, 10, 10)), SbVec3f(11, 12, 13));
    SbVec3f direction(1, 1, 1);
    m.multDirMatrix(direction, direction);
    EXPECT_EQ(direction, SbVec3f(1, 1, 1));
}

TEST(Matrix, ProductAppliesTheLeftFirst)
{
    SbMatrix scale;
    scale.setScale(2);
    EXPECT_EQ(moved(scale * translation(1, 0, 0), SbVec3f(1, 1, 1)), SbVec3f(3, 2, 2));
    EXPECT_EQ(moved(translation(1, 0, 0) * scale, SbVec3f(1, 1, 1)), SbVec3f(4, 2, 2));
    SbMatrix m = scale;
    EXPECT_EQ(m.multLeft(translation(1, 0, 0)), translation(1, 0, 0) * scale);
    m = scale;
    EXPECT_EQ(m.multRight(m), scale * scale);
}

TEST(Matrix, PointsAreDividedByW)
{
    SbMatrix m;
    m[2][3] = 1;
    m[3][3] = 0;
    EXPECT_EQ(moved(m, SbVec3f(4, 6, 2)), SbVec3f(2, 3, 1));
    EXPECT_EQ(moved(m, SbVec3f(4, 6, 0)), SbVec3f(4, 6, 0));
    SbVec4f homogeneous(4, 6, 2, 1);
    m.multVecMatrix(homogeneous, homogeneous);
    EXPECT_EQ(homogeneous, SbVec4f(4, 6, 2, 2));
}

TEST(Matrix, SetTransformWithCenter)
{
    SbMatrix m;
    m.setTransform(SbVec3f(0, 0, 7), SbRotation(SbVec3f(0, 0, 1), Pi / 2), SbVec3f(2, 1, 1), SbRotation(),
                   SbVec3f(1, 0, 0));
    EXPECT_TRUE(moved(m, SbVec3f(1, 0, 0)).equals(SbVec3f(1, 0, 7), 1e-6f));
    EXPECT_TRUE(moved(m, SbVec3f(2, 0, 0)).equals(SbVec3f(1, 2, 7), 1e-6f));
}

TEST(Matrix, ScaleOrientationTurnsTheAxesOfScaling)
{
    SbMatrix m;
    m.setTransform(SbVec3f(), SbRotation(), SbVec3f(3, 1, 1), SbRotation(SbVec3f(0, 0, 1), Pi / 4));
    EXPECT_TRUE(moved(m, SbVec3f(1, 1, 0)).equals(SbVec3f(3, 3, 0), 1e-5f));
    EXPECT_TRUE(moved(m, SbVec3f(1, -1, 0)).equals(SbVec3f(1, -1, 0), 1e-5f));
}

TEST(Matrix, DecompositionComposesToTheSame)
{
    Random random;
    for (int i = 0; i < 20000; ++i) {
        const SbMatrix m = random.transform();
        ASSERT_TRUE(Parts(m).compose().equals(m, 1e-4f)) << "matrix " << i;
    }
}

TEST(Matrix, DecompositionAboutACenterComposesToTheSame)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        const SbMatrix m = random.transform();
        const SbVec3f center = random.vec(5);
        Parts p(m);
        m.getTransform(p.t, p.r, p.s, p.so, center);
        SbMatrix again;
        again.setTransform(p.t, p.r, p.s, p.so, center);
        ASSERT_TRUE(again.equals(m, 1e-4f)) << "matrix " << i;
    }
}

TEST(Matrix, DecompositionKeepsSimpleParts)
{
    Random random;
    for (int i = 0; i < 1000; ++i) {
        const SbRotation r = random.rotation();
        SbMatrix m;
        m.setTransform(SbVec3f(1, 2, 3), r, SbVec3f(2, 2, 2));
        const Parts p(m);
        ASSERT_EQ(p.t, SbVec3f(1, 2, 3));
        ASSERT_TRUE(p.r.equals(r, 1e-5f));
        ASSERT_TRUE(p.s.equals(SbVec3f(2, 2, 2), 1e-5f));
        ASSERT_EQ(p.so, SbRotation());
    }
}

TEST(Matrix, DecompositionOfAxisScaling)
{
    for (const SbVec3f& s : {SbVec3f(3, 1, 2), SbVec3f(-1, 5, 2), SbVec3f(1, -5, 2), SbVec3f(2, 2, -2)}) {
        SbMatrix m;
        m.setScale(s);
        const Parts p(m);
        EXPECT_TRUE(p.s.equals(s, 1e-6f));
        EXPECT_EQ(p.r, SbRotation());
        EXPECT_EQ(p.so, SbRotation());
    }
}

TEST(Matrix, DecompositionOfSingularMatrices)
{
    Random random;
    for (int zeros = 1; zeros <= 3; ++zeros) {
        for (int i = 0; i < 1000; ++i) {
            SbVec3f s = random.mirroringScale();
            for (int k = 0; k < zeros; ++k)
                s[(i + k) % 3] = 0;
            SbMatrix m;
            m.setTransform(random.vec(1), random.rotation(), s, random.rotation());
            ASSERT_TRUE(Parts(m).compose().equals(m, 2e-5f)) << zeros << " zeros, matrix " << i;
        }
    }
}

TEST(Matrix, DecompositionOfNotFiniteMatricesEnds)
{
    SbMatrix m;
    m[0][0] = std::numeric_limits<float>::quiet_NaN();
    m[1][0] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Parts(m).r, SbRotation());
}

TEST(Matrix, InverseUndoes)
{
    Random random;
    for (int i = 0; i < 5000; ++i) {
        const SbMatrix m = random.transform();
        ASSERT_TRUE(m.isInvertible());
        ASSERT_TRUE((m * m.inverse()).equals(SbMatrix(), 2e-4f)) << "matrix " << i;
    }
    const SbMatrix projective(1, 0, 0, 0, 0, 2, 0, 0, 0, 0, -3, -1, 0, 0, -4, 0);
    EXPECT_TRUE((projective * projective.inverse()).equals(SbMatrix(), 1e-6f));
}

TEST(Matrix, TinyScalesAreInvertible)
{
    SbMatrix m;
    m.setScale(1e-8f);
    EXPECT_TRUE(m.isInvertible());
    EXPECT_NEAR(m.inverse()[0][0], 1e8f, 100);
}

TEST(Matrix, SingularHasIdentityAsInverse)
{
    SbMatrix flat;
    flat.setScale(SbVec3f(1, 0, 1));
    EXPECT_FALSE(flat.isInvertible());
    EXPECT_EQ(flat.inverse(), SbMatrix());
    SbMatrix infinite;
    infinite[0][0] = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(infinite.isInvertible());
}

TEST(Matrix, Determinants)
{
    const SbMatrix m(2, 1, 0, 5, 0, 3, 1, 0, 1, 0, 4, 0, 0, 0, 0, 2);
    EXPECT_FLOAT_EQ(m.det3(), 25); // 2*12 - 1*(0 - 1)
    EXPECT_FLOAT_EQ(m.det4(), 50);
    SbMatrix mirror;
    mirror.setScale(SbVec3f(1, 1, -1));
    EXPECT_EQ(mirror.det3(), -1);
    EXPECT_EQ(m.transpose()[3][0], 5);
    EXPECT_FLOAT_EQ(m.transpose().det4(), 50);
}

TEST(Matrix, EqualsIsByElement)
{
    SbMatrix a;
    a[1][2] = 0.25f;
    EXPECT_TRUE(a.equals(SbMatrix(), 0.25f));
    EXPECT_FALSE(a.equals(SbMatrix(), 0.24f));
    EXPECT_NE(a, SbMatrix());
}

TEST(Matrix, MovesLines)
{
    SbMatrix m;
    m.setTransform(SbVec3f(1, 0, 0), SbRotation(SbVec3f(0, 0, 1), Pi / 2), SbVec3f(2, 2, 2));
    SbLine line(SbVec3f(1, 0, 0), SbVec3f(3, 0, 0));
    m.multLineMatrix(line, line);
    EXPECT_TRUE(line.getPosition().equals(SbVec3f(1, 2, 0), 1e-6f));
    EXPECT_TRUE(line.getDirection().equals(SbVec3f(0, 1, 0), 1e-6f));
}
