#include "Stage.h"

namespace vexel {
namespace {

class LinesAndPointsTest : public Stage {
protected:
    static const int Middle = Size / 2;

    static bool isRed(const QImage& picture, int x, int y) { return picture.pixelColor(x, y).red() > 128; }

    /** Number of red pixels in a column. */
    static int height(const QImage& picture, int x)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            count += isRed(picture, x, y);
        return count;
    }

    RenderPacket line(float width)
    {
        RenderPacket packet = plain(lines({SbVec3f(-0.5f, 0.01f, 0), SbVec3f(0.5f, 0.01f, 0)}), SbVec3f(1, 0, 0));
        packet.state.style.lineWidth = width;
        return packet;
    }
};

TEST_F(LinesAndPointsTest, LinesAreAsWideAsAsked)
{
    for (const int width : {1, 2, 4, 7}) {
        const DrawList::Packet handle = list.add(scene, line(static_cast<float>(width)));
        const QImage picture = draw();
        EXPECT_EQ(width, height(picture, Middle));
        EXPECT_EQ(0, height(picture, 8));
        list.remove(handle);
    }
}

TEST_F(LinesAndPointsTest, PatternLeavesGaps)
{
    RenderPacket packet = line(2);
    packet.state.style.linePattern = 0x00ff;
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_EQ(2, height(picture, 16 + 3));
    EXPECT_EQ(0, height(picture, 16 + 11));
    EXPECT_EQ(2, height(picture, 16 + 19));
}

TEST_F(LinesAndPointsTest, LinesThatPassTheViewerKeepTheirWidth)
{
    // From in front of a perspective camera, below its axis, to behind it.
    view.projection = SbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1.02f, -1, 0, 0, -0.202f, 0);
    RenderPacket packet = plain(lines({SbVec3f(0, -0.2f, -5), SbVec3f(0, -2, 5)}), SbVec3f(1, 0, 0));
    packet.state.style.lineWidth = 4;
    list.add(scene, packet);
    const QImage picture = draw();
    int width = 0;
    for (int x = 0; x < Size; ++x)
        width += isRed(picture, x, Size - 5);
    EXPECT_EQ(4, width);
}

TEST_F(LinesAndPointsTest, ClipPlanesCutWideLines)
{
    RenderSurroundings::Values values;
    values.clipPlanes = {SbVec4f(1, 0, 0, 0)};
    RenderPacket packet = line(2);
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_EQ(0, height(picture, Middle - 4));
    EXPECT_EQ(2, height(picture, Middle + 4));
}

TEST_F(LinesAndPointsTest, PointsAreSquareOrRound)
{
    RenderPacket packet = plain(points({SbVec3f(0, 0, 0)}), SbVec3f(1, 0, 0));
    packet.state.style.pointSize = 12;
    const DrawList::Packet handle = list.add(scene, packet);
    QImage picture = draw();
    EXPECT_EQ(12, height(picture, Middle));
    EXPECT_EQ(12, height(picture, Middle + 5));
    packet.state.style.roundPoints = true;
    list.setState(handle, packet.state);
    picture = draw();
    EXPECT_EQ(12, height(picture, Middle));
    EXPECT_LT(height(picture, Middle + 5), 8);
}

TEST_F(LinesAndPointsTest, LineStyleShowsTheOutlineWithoutDiagonals)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.state.style.draw = RenderStyle::Draw::Lines;
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_EQ(2, height(picture, Middle + 7));
    EXPECT_FALSE(isRed(picture, Middle + 7, Middle - 8));
}

TEST_F(LinesAndPointsTest, LineStyleShowsAllTriangleEdgesWhenThereIsNoOutline)
{
    RenderGeometryArrays arrays = square(0.5f)->arrays();
    arrays.outline.clear();
    const auto shape = std::make_shared<const RenderGeometry>(std::move(arrays));
    EXPECT_EQ(5u * 2, shape->edges().size());
    list.add(scene, plain(shape, SbVec3f(1, 0, 0)));
    RenderOptions options;
    options.draw = RenderStyle::Draw::Lines;
    EXPECT_EQ(3, height(draw(options), Middle + 7));
}

TEST_F(LinesAndPointsTest, PointStyleShowsTheVertices)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.state.style.draw = RenderStyle::Draw::Points;
    packet.state.style.pointSize = 4;
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_EQ(8, height(picture, Middle + 16));
    EXPECT_EQ(0, height(picture, Middle));
}

} // namespace
} // namespace vexel
