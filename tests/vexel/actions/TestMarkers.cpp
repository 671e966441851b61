#include "SceneView.h"

#include <set>
#include <string>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoGetPrimitiveCountAction.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/SoMarkerSet.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class Markers : public SceneView {
protected:
    // The point is seen a little right of and above the lower left corner of the pixel in column and row 32.
    void show(const std::string& marker)
    {
        read(("BaseColor { rgb 0 1 0 } Coordinate3 { point [0.01 0.01 0] } MarkerSet { markerIndex [" + marker + "] }")
                 .c_str());
    }

    /** The picture around the marker as text, from top to bottom. */
    std::string seen(int size) { return seen(size, draw()); }
    static std::string seen(int size, const QImage& picture)
    {
        std::string text;
        int inside = 0;
        for (int row = 0; row < size; ++row) {
            for (int column = 0; column < size; ++column) {
                const int x = Size / 2 + column - size / 2;
                const int y = Size - 1 - Size / 2 + row - size / 2;
                const bool isSet = picture.pixelColor(x, y).green() > 128;
                text += isSet ? '#' : '.';
                inside += isSet;
            }
            text += '\n';
        }
        int all = 0;
        for (int i = 0; i < Size * Size; ++i)
            all += picture.pixelColor(i % Size, i / Size).green() > 128;
        EXPECT_EQ(all, inside) << "pixels outside of the square of the sign";
        return text;
    }

    bool isPicked(short x, short y, float radius)
    {
        SoRayPickAction pick(region);
        pick.setPoint(SbVec2s(x, y));
        pick.setRadius(radius);
        pick.apply(root);
        return pick.getPickedPoint() != nullptr;
    }

    static std::string numberOf(SoMarkerSet::Sign sign, SoMarkerSet::Size size)
    {
        return std::to_string(SoMarkerSet::markerOf(sign, size));
    }
};

TEST_F(Markers, ASignIsDrawnPixelByPixelAboutItsPoint)
{
    show(numberOf(SoMarkerSet::TRIANGLE_FILLED, SoMarkerSet::SIZE_5_5));
    EXPECT_EQ("..#..\n..#..\n.###.\n.###.\n#####\n", seen(5));
    show(numberOf(SoMarkerSet::SLASH, SoMarkerSet::SIZE_7_7));
    EXPECT_EQ("......#\n.....#.\n....#..\n...#...\n..#....\n.#.....\n#......\n", seen(7));
    show(numberOf(SoMarkerSet::SHIP_LINE, SoMarkerSet::SIZE_9_9));
    EXPECT_EQ("....#....\n....##...\n....#.#..\n....####.\n....#....\n#########\n.#.....#.\n..#...#..\n...###...\n",
              seen(9));
}

TEST_F(Markers, SmoothedEdgesLeaveTheSignAsItIs)
{
    const vexel::OffscreenTarget smooth(Size, Size, 4);
    for (const int marker : {SoMarkerSet::markerOf(SoMarkerSet::SQUARE_LINE, SoMarkerSet::SIZE_7_7),
                             SoMarkerSet::markerOf(SoMarkerSet::SHIP_FILLED, SoMarkerSet::SIZE_9_9)}) {
        show(std::to_string(marker));
        smooth.bind();
        action->apply(root);
        const int size = marker < 2 * SoMarkerSet::NumSigns ? 7 : 9;
        EXPECT_EQ(seen(size), seen(size, smooth.image()));
    }
}

TEST_F(Markers, EverySignOfTheTableLooksDifferent)
{
    for (int size = 0; size < SoMarkerSet::NumSizes; ++size) {
        std::set<std::string> all;
        for (int sign = 0; sign < SoMarkerSet::NumSigns; ++sign) {
            show(numberOf(static_cast<SoMarkerSet::Sign>(sign), static_cast<SoMarkerSet::Size>(size)));
            const std::string text = seen(5 + 2 * size);
            EXPECT_NE(std::string::npos, text.find('#'));
            EXPECT_TRUE(all.insert(text).second) << "sign " << sign << " is there twice:\n" << text;
        }
    }
}

TEST_F(Markers, NumbersOutsideOfTheTableAreTheFirstSignOrNone)
{
    show("0");
    const std::string first = seen(5);
    show("1000000");
    EXPECT_EQ(first, seen(5));
    show("");
    EXPECT_EQ(first, seen(5));
    show("-1");
    EXPECT_EQ(std::string::npos, seen(5).find('#'));
    EXPECT_FALSE(isPicked(Size / 2, Size / 2, 5));
}

TEST_F(Markers, EachPointHasItsSignAndColor)
{
    read("Material { diffuseColor [1 0 0, 0 0 1] } MaterialBinding { value PER_VERTEX }"
         "Coordinate3 { point [-0.5 0.01 0, 0.5 0.01 0, 0.5 0.51 0] } MarkerSet { markerIndex [-1, 21] }");
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, -0.5f, 0), 0, 0, 0);
    EXPECT_COLOR(pixel(picture, 0.5f, 0), 0, 0, 255);
    EXPECT_COLOR(pixel(picture, 0.5f, 0.5f), 0, 0, 255);
}

TEST_F(Markers, TheSquareOfTheSignIsPicked)
{
    show(numberOf(SoMarkerSet::CROSS, SoMarkerSet::SIZE_9_9));
    for (const short corner : {28, 36}) {
        EXPECT_TRUE(isPicked(corner, 28, 0.1f));
        EXPECT_TRUE(isPicked(corner, 36, 0.1f));
    }
    EXPECT_TRUE(isPicked(34, 32, 0.1f));
    EXPECT_FALSE(isPicked(27, 32, 0.1f));
    EXPECT_FALSE(isPicked(37, 32, 0.1f));
    EXPECT_FALSE(isPicked(32, 37, 0.1f));
    EXPECT_TRUE(isPicked(37, 32, 6));
    show(numberOf(SoMarkerSet::CROSS, SoMarkerSet::SIZE_5_5));
    EXPECT_FALSE(isPicked(36, 28, 0.1f));
    EXPECT_TRUE(isPicked(34, 34, 0.1f));
}

TEST_F(Markers, AMarkerIsAPoint)
{
    read("Coordinate3 { point [-0.5 0 0, 0 0 0, 0.5 0 0] } MarkerSet { markerIndex [5, -1, 7] }");
    SoGetPrimitiveCountAction count;
    count.apply(root);
    EXPECT_EQ(2, count.getPointCount());
    SoRayPickAction pick(region);
    pick.setNormalizedPoint(SbVec2f(0.75f, 0.5f));
    pick.apply(root);
    ASSERT_TRUE(pick.getPickedPoint());
    const auto* detail = dynamic_cast<const SoPointDetail*>(pick.getPickedPoint()->getDetail());
    ASSERT_TRUE(detail);
    EXPECT_EQ(2, detail->getCoordinateIndex());
}

TEST_F(Markers, TheBoxHasRoomForTheSigns)
{
    read("Separator { Coordinate3 { point [0.25 0 0] } MarkerSet { markerIndex 81 } }");
    const auto width = [this] {
        SoGetBoundingBoxAction action(region);
        action.apply(root);
        return action.getBoundingBox().getSize()[0];
    };
    // 64 pixels are 2 wide.
    EXPECT_NEAR(9 * 2.0f / Size, width(), 1e-5f);
    region.setWindowSize(2 * Size, 2 * Size);
    EXPECT_NEAR(9 * 1.0f / Size, width(), 1e-5f);
}

} // namespace
