#include "Random.h"

#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbLine.h>
#include <vexel/base/SbPlane.h>
#include <vexel/base/SbViewVolume.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float Pi = 3.14159265f;

/** A volume of each kind in turn, somewhere in the world. */
SbViewVolume anyVolume(Random& random, int i)
{
    SbViewVolume volume;
    if (i % 3 == 0)
        volume.ortho(-3, 1, -1, 2, 0.5f, 20);
    else if (i % 3 == 1)
        volume.perspective(random.real(0.2f, 2), random.real(0.5f, 2), 0.5f, 20);
    else
        volume.frustum(-0.3f, 0.1f, -0.1f, 0.5f, 0.5f, 20);
    volume.rotateCamera(random.rotation());
    volume.translateCamera(random.vec(10));
    return volume;
}

SbVec3f onScreen(const SbViewVolume& volume, const SbVec3f& world)
{
    SbVec3f screen;
    volume.projectToScreen(world, screen);
    return screen;
}

} // namespace

TEST(ViewVolume, PerspectiveShape)
{
    SbViewVolume volume;
    volume.perspective(Pi / 2, 2, 1, 11);
    EXPECT_EQ(volume.getProjectionType(), SbViewVolume::PERSPECTIVE);
    EXPECT_NEAR(volume.getHeight(), 2, 1e-6f);
    EXPECT_NEAR(volume.getWidth(), 4, 1e-6f);
    EXPECT_EQ(volume.getDepth(), 10);
    EXPECT_EQ(volume.getNearDist(), 1);
    EXPECT_EQ(volume.getProjectionDirection(), SbVec3f(0, 0, -1));
    EXPECT_EQ(volume.getViewUp(), SbVec3f(0, 1, 0));
    EXPECT_TRUE(onScreen(volume, SbVec3f(10, 5, -5)).equals(SbVec3f(1, 1, 0.88f), 1e-6f));
    EXPECT_TRUE(onScreen(volume, SbVec3f(0, 0, -11)).equals(SbVec3f(0.5f, 0.5f, 1), 1e-6f));
}

TEST(ViewVolume, OrthoShape)
{
    SbViewVolume volume;
    volume.ortho(-2, 6, -1, 1, 1, 11);
    EXPECT_TRUE(onScreen(volume, SbVec3f(0, 0, -6)).equals(SbVec3f(0.25f, 0.5f, 0.5f), 1e-6f));
}

TEST(ViewVolume, CameraIsTurnedAboutTheEye)
{
    SbViewVolume volume;
    volume.translateCamera(SbVec3f(5, 0, 0));
    volume.rotateCamera(SbRotation(SbVec3f(0, 1, 0), Pi / 2));
    EXPECT_EQ(volume.getProjectionPoint(), SbVec3f(5, 0, 0));
    EXPECT_TRUE(volume.getProjectionDirection().equals(SbVec3f(-1, 0, 0), 1e-6f));
    EXPECT_TRUE(volume.getSightPoint(3).equals(SbVec3f(2, 0, 0), 1e-5f));
    SbVec3f camera;
    volume.getCameraSpaceMatrix().multVecMatrix(SbVec3f(2, 0, 0), camera);
    EXPECT_TRUE(camera.equals(SbVec3f(0, 0, -3), 1e-5f));
}

TEST(ViewVolume, MatricesAgreeWithProjection)
{
    Random random;
    for (int i = 0; i < 3000; ++i) {
        const SbViewVolume volume = anyVolume(random, i);
        const SbVec3f world =
            volume.getPlanePoint(random.real(0.5f, 20), SbVec2f(random.real(0, 1), random.real(0, 1)));
        SbVec3f clip;
        volume.getMatrix().multVecMatrix(world, clip);
        ASSERT_TRUE((clip * 0.5f + SbVec3f(0.5f, 0.5f, 0.5f)).equals(onScreen(volume, world), 1e-4f)) << i;
    }
}

TEST(ViewVolume, ScreenPointsComeBackFromTheWorld)
{
    Random random;
    for (int i = 0; i < 3000; ++i) {
        const SbViewVolume volume = anyVolume(random, i);
        const SbVec2f point(random.real(0, 1), random.real(0, 1));
        const float distance = random.real(0.5f, 20);
        const SbVec3f world = volume.getPlanePoint(distance, point);
        ASSERT_TRUE(SbVec2f(onScreen(volume, world).getValue()).equals(point, 1e-4f));
        ASSERT_NEAR(volume.getPlane(distance).getDistance(world), 0, 1e-4f);
        SbLine line;
        volume.projectPointToLine(point, line);
        ASSERT_TRUE(line.getClosestPoint(world).equals(world, 1e-4f));
        SbVec3f onNear, onFar;
        volume.projectPointToLine(point, onNear, onFar);
        ASSERT_NEAR(onScreen(volume, onNear)[2], 0, 1e-4f);
        ASSERT_NEAR(onScreen(volume, onFar)[2], 1, 1e-4f);
        ASSERT_EQ(line.getPosition(), onNear);
        ASSERT_GT(line.getDirection().dot(onFar - onNear), 0);
    }
}

TEST(ViewVolume, ThePlaneAcrossTheViewFacesTheEye)
{
    const SbViewVolume volume;
    EXPECT_EQ(volume.getPlane(4), SbPlane(SbVec3f(0, 0, 1), -4));
}

TEST(ViewVolume, InsideIsWhereTheScreenIs)
{
    Random random;
    for (int i = 0; i < 3000; ++i) {
        const SbViewVolume volume = anyVolume(random, i);
        const SbVec2f point(random.real(-0.5f, 1.5f), random.real(-0.5f, 1.5f));
        const float distance = random.real(0.1f, 25);
        const bool inside =
            point[0] > 0 && point[0] < 1 && point[1] > 0 && point[1] < 1 && distance > 0.5f && distance < 20;
        const SbVec3f world = volume.getPlanePoint(distance, point);
        ASSERT_EQ(volume.intersect(world), inside) << i;
        ASSERT_EQ(volume.intersect(SbBox3f(world, world)), inside) << i;
    }
}

TEST(ViewVolume, BoxesAreCulledOnlyOutside)
{
    SbViewVolume volume;
    volume.perspective(Pi / 2, 1, 1, 10);
    const auto boxAt = [](float x, float y, float z) {
        return SbBox3f(SbVec3f(x - 1, y - 1, z - 1), SbVec3f(x + 1, y + 1, z + 1));
    };
    EXPECT_TRUE(volume.intersect(boxAt(0, 0, -5)));
    EXPECT_TRUE(volume.intersect(boxAt(5.5f, 0, -5)));
    EXPECT_FALSE(volume.intersect(boxAt(8, 0, -5)));
    EXPECT_FALSE(volume.intersect(boxAt(0, -8, -5)));
    EXPECT_FALSE(volume.intersect(boxAt(0, 0, 5)));
    EXPECT_FALSE(volume.intersect(boxAt(0, 0, -12)));
    EXPECT_TRUE(volume.intersect(SbBox3f(SbVec3f(-100, -100, -100), SbVec3f(100, 100, 100))));
    EXPECT_FALSE(volume.intersect(SbBox3f()));
}

TEST(ViewVolume, NarrowShowsAPart)
{
    Random random;
    for (int i = 0; i < 300; ++i) {
        const SbViewVolume volume = anyVolume(random, i);
        const SbViewVolume part = volume.narrow(0.25f, 0.5f, 0.75f, 0.75f);
        const SbVec3f world = volume.getPlanePoint(random.real(1, 19), SbVec2f(0.5f, 0.5f));
        ASSERT_TRUE(SbVec2f(onScreen(part, world).getValue()).equals(SbVec2f(0.5f, 0), 1e-3f));
    }
}

TEST(ViewVolume, ScaleIsAboutTheMiddle)
{
    SbViewVolume volume;
    volume.ortho(2, 6, 0, 2, 1, 10);
    volume.scale(2);
    volume.scaleWidth(0.5f);
    EXPECT_EQ(volume.getWidth(), 4);
    EXPECT_EQ(volume.getHeight(), 4);
    EXPECT_TRUE(onScreen(volume, SbVec3f(4, 1, -1)).equals(SbVec3f(0.5f, 0.5f, 0), 1e-6f));
}

TEST(ViewVolume, SizesOnTheScreen)
{
    SbViewVolume volume;
    volume.perspective(Pi / 2, 1, 1, 10);
    EXPECT_NEAR(volume.getWorldToScreenScale(SbVec3f(3, 0, -5), 0.1f), 1, 1e-5f);
    const SbVec2f size = volume.projectBox(SbBox3f(SbVec3f(-1, -2, -5), SbVec3f(1, 2, -5)));
    EXPECT_TRUE(size.equals(SbVec2f(0.2f, 0.4f), 1e-5f));
    EXPECT_EQ(volume.projectBox(SbBox3f()), SbVec2f(0, 0));
    volume.ortho(-2, 2, -2, 2, 1, 10);
    EXPECT_NEAR(volume.getWorldToScreenScale(SbVec3f(0, 0, -9), 0.25f), 1, 1e-6f);
}

TEST(ViewVolume, PointsBesideTheEyeStayFinite)
{
    SbViewVolume volume;
    volume.perspective(1, 1, 1, 10);
    const SbVec3f screen = onScreen(volume, SbVec3f(1, 1, 0));
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(std::isfinite(screen[i]));
}
