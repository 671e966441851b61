#include "SceneView.h"

#include <string>

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

/** A green square that fills the view of a camera for pictures twice as wide as high; the background is red. */
class ViewportMapping : public SceneView {
protected:
    void SetUp() override
    {
        SceneView::SetUp();
        read("BaseColor { rgb 0 1 0 } Cube { width 4 height 2 }");
        camera()->aspectRatio = 2;
        action->setBackgroundColor(SbColorRGBA(1, 0, 0, 1));
    }

    SoOrthographicCamera* camera() { return static_cast<SoOrthographicCamera*>(root->getChild(0)); }

    QImage drawWith(SoCamera::ViewportMapping mapping)
    {
        camera()->viewportMapping = mapping;
        return draw();
    }

    bool isPicked(short x, short y)
    {
        SoRayPickAction pick(region);
        pick.setPoint(SbVec2s(x, y));
        pick.apply(root);
        return pick.getPickedPoint() != nullptr;
    }

    /** Rows from the top; the view takes up those from a quarter to three quarters. */
    static constexpr int First = Size / 4;
    static constexpr int Last = Size * 3 / 4 - 1;
};

TEST_F(ViewportMapping, AFilledFrameIsGrey)
{
    const QImage picture = drawWith(SoCamera::CROP_VIEWPORT_FILL_FRAME);
    EXPECT_COLOR(picture.pixelColor(5, First - 1), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(5, First), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(0, Last), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(5, Last + 1), 128, 128, 128);
}

TEST_F(ViewportMapping, ALineFrameIsALineAtTheBorder)
{
    const QImage picture = drawWith(SoCamera::CROP_VIEWPORT_LINE_FRAME);
    EXPECT_COLOR(picture.pixelColor(5, First - 1), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(5, First), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(5, First + 1), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(0, Size / 2), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(1, Size / 2), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(Size - 1, Size / 2), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(5, Last), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(5, Last + 1), 255, 0, 0);
}

TEST_F(ViewportMapping, WithoutAFrameTheBackgroundIsAround)
{
    const QImage picture = drawWith(SoCamera::CROP_VIEWPORT_NO_FRAME);
    EXPECT_COLOR(picture.pixelColor(5, First - 1), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(0, First), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(Size - 1, Last), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(5, Last + 1), 255, 0, 0);
}

TEST_F(ViewportMapping, ANarrowViewHasBarsAtTheSides)
{
    camera()->aspectRatio = 0.5f;
    const QImage picture = drawWith(SoCamera::CROP_VIEWPORT_FILL_FRAME);
    EXPECT_COLOR(picture.pixelColor(Size / 4 - 1, 3), 128, 128, 128);
    EXPECT_COLOR(picture.pixelColor(Size / 4, 0), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(Size * 3 / 4, 3), 128, 128, 128);
}

TEST_F(ViewportMapping, LeftAloneTheViewIsStretched)
{
    const QImage picture = drawWith(SoCamera::LEAVE_ALONE);
    EXPECT_COLOR(picture.pixelColor(0, 0), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(Size - 1, Size - 1), 0, 255, 0);
    EXPECT_TRUE(isPicked(0, 0));
}

TEST_F(ViewportMapping, AnAdjustedCameraTakesTheFormOfTheViewport)
{
    camera()->height = 4;
    const QImage picture = drawWith(SoCamera::ADJUST_CAMERA);
    EXPECT_COLOR(picture.pixelColor(0, First - 1), 255, 0, 0);
    EXPECT_COLOR(picture.pixelColor(0, First), 0, 255, 0);
    EXPECT_COLOR(picture.pixelColor(0, Last + 1), 255, 0, 0);
}

TEST_F(ViewportMapping, PicksGoThroughTheCroppedView)
{
    drawWith(SoCamera::CROP_VIEWPORT_LINE_FRAME);
    EXPECT_FALSE(isPicked(5, First - 1));
    EXPECT_TRUE(isPicked(5, First));
    EXPECT_TRUE(isPicked(0, Last));
    EXPECT_FALSE(isPicked(5, Last + 1));
    SoRayPickAction pick(region);
    pick.setNormalizedPoint(SbVec2f(0.75f, 0.5f + 1 / 8.0f));
    pick.apply(root);
    ASSERT_TRUE(pick.getPickedPoint());
    EXPECT_NEAR(1, pick.getPickedPoint()->getPoint()[0], 1e-3f);
    EXPECT_NEAR(0.5f, pick.getPickedPoint()->getPoint()[1], 1e-3f);
}

TEST_F(ViewportMapping, MarkersKeepTheirSizeWhenTheViewIsCropped)
{
    read("BaseColor { rgb 0 1 0 } Coordinate3 { point 0.01 0.01 0 } MarkerSet { markerIndex 81 }");
    const auto count = [](const QImage& picture) {
        int green = 0;
        for (int i = 0; i < Size * Size; ++i)
            green += picture.pixelColor(i % Size, i / Size).green() > 200;
        return green;
    };
    EXPECT_EQ(81, count(drawWith(SoCamera::ADJUST_CAMERA)));
    camera()->aspectRatio = 2;
    EXPECT_EQ(81, count(drawWith(SoCamera::CROP_VIEWPORT_NO_FRAME)));
}

struct StyleCase {
    const char* style;
    int column; ///< of the picture's only pixel, -1 for nowhere
    int row;
};

class ImageStyle : public SceneView, public testing::WithParamInterface<StyleCase> {};

TEST_P(ImageStyle, PlacesThePictureOfABackground)
{
    const StyleCase& expected = GetParam();
    read((std::string("ImageBackground { image 1 1 3 0x00ff00 style ") + expected.style + " }").c_str());
    const QImage picture = draw();
    int count = 0;
    for (int i = 0; i < Size * Size; ++i)
        count += picture.pixelColor(i % Size, i / Size).green() > 200;
    EXPECT_EQ(expected.column < 0 ? 0 : 1, count);
    if (expected.column >= 0)
        EXPECT_COLOR(picture.pixelColor(expected.column, expected.row), 0, 255, 0);
}

constexpr int End = 63;
INSTANTIATE_TEST_SUITE_P(Styles, ImageStyle,
                         testing::Values(StyleCase{"NONE", -1, -1}, StyleCase{"CENTERED", 31, 32},
                                         StyleCase{"LOWER_LEFT", 0, End}, StyleCase{"UPPER_LEFT", 0, 0},
                                         StyleCase{"UPPER_RIGHT", End, 0}, StyleCase{"LOWER_RIGHT", End, End}));

TEST_F(SceneView, AStretchedOrTiledPictureFillsTheBackground)
{
    for (const char* style : {"STRETCHED", "TILED"}) {
        read((std::string("ImageBackground { image 1 1 3 0x00ff00 style ") + style + " }").c_str());
        const QImage picture = draw();
        EXPECT_COLOR(picture.pixelColor(0, 0), 0, 255, 0);
        EXPECT_COLOR(picture.pixelColor(End, End), 0, 255, 0);
    }
}

} // namespace
