#include "Stage.h"

namespace vexel {
namespace {

using HighlightTest = Stage;

RenderHighlight mark(RenderHighlight::Kind kind, float width)
{
    RenderHighlight result;
    result.kind = kind;
    result.color = SbVec4f(0, 1, 0, 1);
    result.width = width;
    return result;
}

TEST_F(HighlightTest, LinesFollowTheEdgesOfTheChosenPacketsOnly)
{
    RenderPacket packet = plain(square(0.25f), SbVec3f(1, 0, 0));
    packet.matrix = moved(-0.5f, 0, 0);
    const DrawList::Packet chosen = list.add(scene, packet);
    packet.matrix = moved(0.5f, 0, 0);
    list.add(scene, packet);
    const QImage picture = highlight({chosen}, mark(RenderHighlight::Kind::Line, 2));
    EXPECT_COLOR(at(picture, -0.5f, 0.25f), 0, 255, 0);
    EXPECT_COLOR(at(picture, -0.5f, 0), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0.5f, 0.24f), 255, 0, 0);
}

TEST_F(HighlightTest, HiddenLinesShowOnlyOnTop)
{
    const DrawList::Packet chosen = list.add(scene, plain(square(0.25f), SbVec3f(1, 0, 0)));
    list.add(scene, plain(square(0.5f, 0.5f), SbVec3f(0, 0, 1)));
    RenderHighlight lines = mark(RenderHighlight::Kind::Line, 2);
    EXPECT_COLOR(at(highlight({chosen}, lines), 0, 0.25f), 0, 0, 255);
    lines.onTop = true;
    EXPECT_COLOR(at(highlight({chosen}, lines), 0, 0.25f), 0, 255, 0);
}

TEST_F(HighlightTest, HaloGlowsAroundTheOutlineThroughOtherThings)
{
    const DrawList::Packet chosen = list.add(scene, plain(square(0.25f), SbVec3f(1, 0, 0)));
    list.add(scene, plain(square(0.6f, 0.5f), SbVec3f(0, 0, 1)));
    const QImage picture = highlight({chosen}, mark(RenderHighlight::Kind::Halo, 4));
    const int edge = Size / 2 + Size / 8;
    EXPECT_COLOR(picture.pixelColor(Size / 2, Size / 2), 0, 0, 255);
    EXPECT_GT(picture.pixelColor(edge, Size / 2).green(), 200);
    EXPECT_GT(picture.pixelColor(edge, Size / 2).green(), picture.pixelColor(edge + 2, Size / 2).green());
    EXPECT_GT(picture.pixelColor(edge + 2, Size / 2).green(), 10);
    EXPECT_COLOR(picture.pixelColor(edge + 5, Size / 2), 0, 0, 255);
}

TEST_F(HighlightTest, HaloStaysInItsViewport)
{
    const DrawList::Packet chosen = list.add(scene, plain(square(0.5f), SbVec3f(1, 0, 0)));
    view.viewport = {Size / 2, 0, Size / 2, Size};
    const QImage picture = highlight({chosen}, mark(RenderHighlight::Kind::Halo, 4));
    EXPECT_GT(at(picture, 0.5f, 0.53f).green(), 150);
    EXPECT_EQ(0, at(picture, -0.5f, 0.53f).green());
}

TEST_F(HighlightTest, BoxSurroundsAllChosenPackets)
{
    RenderPacket packet = plain(square(0.25f), SbVec3f(1, 0, 0));
    packet.matrix = moved(-0.5f, 0, 0);
    std::vector<DrawList::Packet> chosen = {list.add(scene, packet)};
    packet.matrix = moved(0.5f, 0, 0);
    chosen.push_back(list.add(scene, packet));
    const QImage picture = highlight(chosen, mark(RenderHighlight::Kind::Box, 2));
    EXPECT_COLOR(at(picture, 0, 0.25f), 0, 255, 0);
    EXPECT_COLOR(at(picture, 0.75f, 0), 0, 255, 0);
    EXPECT_COLOR(at(picture, -0.3f, 0), 255, 0, 0);
}

TEST_F(HighlightTest, NothingChosenMarksNothing)
{
    list.add(scene, plain(square(0.5f), SbVec3f(1, 0, 0)));
    const QImage before = draw();
    EXPECT_EQ(before, highlight({}, mark(RenderHighlight::Kind::Halo, 4)));
}

} // namespace
} // namespace vexel
