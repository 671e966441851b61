#include "Stage.h"

namespace vexel {
namespace {

using BackgroundTest = Stage;

TEST_F(BackgroundTest, SolidFillsTheViewportOnly)
{
    list.background.color = SbVec4f(1, 0, 0, 1);
    draw();
    list.background.color = SbVec4f(0, 0, 1, 1);
    view.viewport = {0, 0, Size / 2, Size};
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, -0.5f, 0), 0, 0, 255);
    EXPECT_COLOR(at(picture, 0.5f, 0), 255, 0, 0);
}

TEST_F(BackgroundTest, TransparentBackgroundGivesTransparentPixels)
{
    list.background.color = SbVec4f(1, 1, 1, 0);
    list.add(scene, plain(square(0.5f), SbVec3f(0, 1, 0)));
    const QImage picture = draw();
    EXPECT_EQ(0, at(picture, 0.9f, 0.9f).alpha());
    EXPECT_EQ(255, at(picture, 0, 0).alpha());
}

TEST_F(BackgroundTest, GradientRunsFromBottomToTop)
{
    list.background.kind = RenderBackground::Kind::Gradient;
    list.background.color = SbVec4f(0, 0, 0, 1);
    list.background.topColor = SbVec4f(1, 1, 1, 1);
    const QImage picture = draw();
    EXPECT_LT(at(picture, 0, -1).red(), 6);
    EXPECT_NEAR(at(picture, 0, 0).red(), 128, 4);
    EXPECT_GT(at(picture, 0, 1).red(), 249);
    EXPECT_NEAR(at(picture, -0.9f, 0.5f).red(), at(picture, 0.9f, 0.5f).red(), 1);
}

TEST_F(BackgroundTest, GradientOfATileContinuesInTheNextOne)
{
    list.background.kind = RenderBackground::Kind::Gradient;
    list.background.color = SbVec4f(0, 0, 0, 1);
    list.background.topColor = SbVec4f(1, 1, 1, 1);
    view.window = {0, 0.5f, 1, 1};
    EXPECT_NEAR(at(draw(), 0, -1).red(), 128, 4);
}

/** Red in the lower left pixel, green in the upper right one, blue elsewhere. */
std::shared_ptr<const RenderImage> corners()
{
    const std::vector<std::uint8_t> texels = {255, 0, 0, 0, 0, 255, 0, 0, 255, 0, 255, 0};
    return std::make_shared<const RenderImage>(2, 2, 1, 3, texels);
}

TEST_F(BackgroundTest, StretchedImageStandsUpright)
{
    list.background.kind = RenderBackground::Kind::Stretched;
    list.background.image = corners();
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, -0.9f, -0.9f), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0.9f, 0.9f), 0, 255, 0);
    EXPECT_COLOR(at(picture, -0.9f, 0.9f), 0, 0, 255);
}

TEST_F(BackgroundTest, CenteredImageKeepsItsSize)
{
    list.background.kind = RenderBackground::Kind::Placed;
    list.background.color = SbVec4f(1, 1, 1, 1);
    list.background.image = corners();
    const QImage picture = draw();
    EXPECT_COLOR(picture.pixelColor(Size / 2 - 1, Size / 2), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(Size / 2, Size / 2 - 1), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(Size / 2 + 1, Size / 2), 255, 255, 255);
}

TEST_F(BackgroundTest, PlacedImageStandsInTheCornerThatIsAskedFor)
{
    list.background.kind = RenderBackground::Kind::Placed;
    list.background.color = SbVec4f(1, 1, 1, 1);
    list.background.image = corners();
    for (const int right : {0, 1}) {
        for (const int top : {0, 1}) {
            list.background.place = SbVec2f(static_cast<float>(right), static_cast<float>(top));
            const QImage picture = draw();
            const int left = right ? Size - 2 : 0;
            const int bottom = top ? 1 : Size - 1;
            EXPECT_COLOR(picture.pixelColor(left, bottom), 255, 0, 0);
            EXPECT_COLOR(picture.pixelColor(left + 1, bottom - 1), 0, 255, 0);
            EXPECT_COLOR(picture.pixelColor(right ? left - 1 : left + 2, bottom), 255, 255, 255);
            EXPECT_COLOR(picture.pixelColor(left, top ? bottom + 1 : bottom - 2), 255, 255, 255);
        }
    }
}

TEST_F(BackgroundTest, TiledImageStartsAtTheLowerLeftCorner)
{
    list.background.kind = RenderBackground::Kind::Tiled;
    list.background.image = corners();
    const QImage picture = draw();
    EXPECT_COLOR(picture.pixelColor(0, Size - 1), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(2, Size - 1), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(1, Size - 2), 0, 255, 0);
}

} // namespace
} // namespace vexel
