#include <vexel/base/SbVec2d.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2i32.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/base/SbVec3d.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec3i32.h>
#include <vexel/base/SbVec3s.h>
#include <vexel/base/SbVec4d.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/SbVec4i32.h>
#include <vexel/base/SbVec4s.h>

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

template <class Vec>
class VecTest : public testing::Test {
};

using AllVecs = testing::Types<SbVec2s, SbVec2i32, SbVec2f, SbVec2d, SbVec3s, SbVec3i32, SbVec3f, SbVec3d, SbVec4s,
                               SbVec4i32, SbVec4f, SbVec4d>;
TYPED_TEST_SUITE(VecTest, AllVecs, );

TYPED_TEST(VecTest, IsAnArrayOfComponents)
{
    EXPECT_EQ(sizeof(TypeParam), TypeParam::Size * sizeof(typename TypeParam::Component));
    EXPECT_TRUE(std::is_trivially_copyable_v<TypeParam>);
}

TYPED_TEST(VecTest, ArithmeticIsByComponent)
{
    using C = typename TypeParam::Component;
    C values[] = {6, -4, 2, 8};
    const TypeParam a(values);
    TypeParam zero;
    TypeParam twice = a * 2;
    for (int i = 0; i < TypeParam::Size; ++i) {
        EXPECT_EQ(a[i], values[i]);
        EXPECT_EQ(zero[i], 0);
        EXPECT_EQ(twice[i], 2 * values[i]);
    }
    EXPECT_EQ(a + a, twice);
    EXPECT_EQ(2 * a, twice);
    EXPECT_EQ(twice - a, a);
    EXPECT_EQ(twice / 2, a);
    EXPECT_EQ(-a, zero - a);
    EXPECT_EQ(TypeParam(a).negate(), -a);
    EXPECT_NE(a, twice);
    twice[TypeParam::Size - 1] += 1;
    EXPECT_NE(a + a, twice);
}

TYPED_TEST(VecTest, LengthAndDot)
{
    using C = typename TypeParam::Component;
    C values[] = {2, 3, 6, 0};
    const TypeParam a(values);
    EXPECT_EQ(a.dot(a), TypeParam::Size == 2 ? 13 : 49);
    EXPECT_EQ(a.sqrLength(), TypeParam::Size == 2 ? 13 : 49);
    if (TypeParam::Size != 2) {
        EXPECT_EQ(a.length(), 7);
    }
}

TEST(Vec, CrossIsRightHanded)
{
    EXPECT_EQ(SbVec3f(1, 0, 0).cross(SbVec3f(0, 1, 0)), SbVec3f(0, 0, 1));
    EXPECT_EQ(SbVec3d(1, 2, 3).cross(SbVec3d(4, 5, 6)), SbVec3d(-3, 6, -3));
}

TEST(Vec, NormalizeAnswersTheLengthBefore)
{
    SbVec3f v(0, 3, 4);
    EXPECT_EQ(v.normalize(), 5);
    EXPECT_TRUE(v.equals(SbVec3f(0, 0.6f, 0.8f), 1e-6f));
}

TEST(Vec, NormalizeLeavesAZeroVector)
{
    SbVec3f v;
    EXPECT_EQ(v.normalize(), 0);
    EXPECT_EQ(v, SbVec3f(0, 0, 0));
}

TEST(Vec, NormalizeNeitherOverflowsNorVanishes)
{
    SbVec2f large(3e30f, 4e30f);
    large.normalize();
    EXPECT_TRUE(large.equals(SbVec2f(0.6f, 0.8f), 1e-6f));
    SbVec2f small(3e-30f, 4e-30f);
    small.normalize();
    EXPECT_TRUE(small.equals(SbVec2f(0.6f, 0.8f), 1e-6f));
}

TEST(Vec, ProductsOfIntegersDoNotOverflow)
{
    EXPECT_EQ(SbVec2s(30000, 30000).dot(SbVec2s(30000, 30000)), 1800000000);
    EXPECT_EQ(SbVec2i32(2000000000, 0).dot(SbVec2i32(2000000000, 0)), 4000000000000000000);
}

TEST(Vec, IntegersTakeRealFactors)
{
    EXPECT_EQ(SbVec2s(10, -10) * 0.25, SbVec2s(2, -2));
    EXPECT_EQ(SbVec2i32(10, 7) / 2, SbVec2i32(5, 3));
}

TEST(Vec, EqualsTakesADistance)
{
    EXPECT_TRUE(SbVec2f(0, 0).equals(SbVec2f(3, 4), 5));
    EXPECT_FALSE(SbVec2f(0, 0).equals(SbVec2f(3, 4), 4.99f));
    EXPECT_TRUE(SbVec2f(1, 2).equals(SbVec2f(1, 2), 0));
}

TEST(Vec, ConversionsAreExplicitAndByComponent)
{
    EXPECT_EQ(SbVec3i32(SbVec3f(1.9f, -1.9f, 0.5f)), SbVec3i32(1, -1, 0));
    EXPECT_EQ(SbVec3d(SbVec3f(0.5f, 1, 2)), SbVec3d(0.5, 1, 2));
    EXPECT_FALSE((std::is_convertible_v<SbVec3f, SbVec3d>));
    EXPECT_FALSE((std::is_constructible_v<SbVec3f, SbVec2f>));
    EXPECT_FALSE((std::is_constructible_v<SbVec3f, float, float>));
    SbVec2f v;
    EXPECT_EQ(v.setValue(SbVec2s(3, 4)), SbVec2f(3, 4));
    float x, y;
    v.getValue(x, y);
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, 4);
}

TEST(Vec, EqualVectorsHashAlike)
{
    const std::hash<SbVec3f> hash;
    EXPECT_EQ(SbVec3f(0.0f, 1, 2), SbVec3f(-0.0f, 1, 2));
    EXPECT_EQ(hash(SbVec3f(0.0f, 1, 2)), hash(SbVec3f(-0.0f, 1, 2)));
    EXPECT_NE(hash(SbVec3f(1, 2, 3)), hash(SbVec3f(3, 2, 1)));
}
