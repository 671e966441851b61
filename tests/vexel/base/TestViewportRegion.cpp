#include <vexel/base/SbDict.h>
#include <vexel/base/SbViewportRegion.h>

#include <gtest/gtest.h>

TEST(ViewportRegion, IsTheWholeWindowByDefault)
{
    const SbViewportRegion region(640, 480);
    EXPECT_EQ(region.getViewportOriginPixels(), SbVec2s(0, 0));
    EXPECT_EQ(region.getViewportSizePixels(), SbVec2s(640, 480));
    EXPECT_FLOAT_EQ(region.getViewportAspectRatio(), 4 / 3.0f);
    EXPECT_EQ(SbViewportRegion(), SbViewportRegion(100, 100));
}

TEST(ViewportRegion, ThePartFollowsTheWindow)
{
    SbViewportRegion region(200, 100);
    region.setViewportPixels(SbVec2s(50, 20), SbVec2s(100, 60));
    EXPECT_EQ(region.getViewportOrigin(), SbVec2f(0.25f, 0.2f));
    region.setWindowSize(400, 300);
    EXPECT_EQ(region.getViewportOriginPixels(), SbVec2s(100, 60));
    EXPECT_EQ(region.getViewportSizePixels(), SbVec2s(200, 180));
    EXPECT_EQ(region.getWindowSize(), SbVec2s(400, 300));
    EXPECT_NE(region, SbViewportRegion(400, 300));
}

TEST(ViewportRegion, DegenerateSizes)
{
    SbViewportRegion region(-5, 0);
    EXPECT_EQ(region.getWindowSize(), SbVec2s(0, 0));
    EXPECT_EQ(region.getViewportAspectRatio(), 1);
    region.setViewportPixels(SbVec2s(1, 1), SbVec2s(1, 1));
    EXPECT_EQ(region.getViewportSize(), SbVec2f(1, 1));
    region.setWindowSize(32000, 32000);
    region.setViewport(SbVec2f(0, 0), SbVec2f(100, 100));
    EXPECT_EQ(region.getViewportSizePixels(), SbVec2s(32767, 32767));
}

TEST(ViewportRegion, Resolution)
{
    SbViewportRegion region;
    EXPECT_EQ(region.getPixelsPerInch(), 72);
    region.setPixelsPerInch(144);
    EXPECT_EQ(region.getPixelsPerPoint(), 2);
    region.setPixelsPerInch(0);
    EXPECT_EQ(region.getPixelsPerInch(), 144);
}

TEST(Dict, KeepsOneValueForAKey)
{
    SbDict dict;
    int a = 0, b = 0;
    void* found = &b;
    EXPECT_FALSE(dict.find(7, found));
    EXPECT_EQ(found, nullptr);
    EXPECT_TRUE(dict.enter(7, &a));
    EXPECT_FALSE(dict.enter(7, &b));
    EXPECT_TRUE(dict.find(7, found));
    EXPECT_EQ(found, &b);
    EXPECT_TRUE(dict.enter(&a, &b));
    EXPECT_EQ(dict.getLength(), 2u);
    EXPECT_TRUE(dict.remove(&a));
    EXPECT_FALSE(dict.remove(&a));
    dict.clear();
    EXPECT_EQ(dict.getLength(), 0u);
}
