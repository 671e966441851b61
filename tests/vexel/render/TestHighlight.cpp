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
    RenderHighlight halo = mark(RenderHighlight::Kind::Halo, 4);
    halo.onTop = true;
    const QImage picture = highlight({chosen}, halo);
    const int edge = Size / 2 + Size / 8;
    EXPECT_COLOR(picture.pixelColor(Size / 2, Size / 2), 0, 0, 255);
    EXPECT_GT(picture.pixelColor(edge, Size / 2).green(), 200);
    EXPECT_GT(picture.pixelColor(edge, Size / 2).green(), picture.pixelColor(edge + 2, Size / 2).green());
    EXPECT_GT(picture.pixelColor(edge + 2, Size / 2).green(), 10);
    EXPECT_COLOR(picture.pixelColor(edge + 5, Size / 2), 0, 0, 255);
}

TEST_F(HighlightTest, AnEdgeBetweenTwoFacesIsOneEdgeOfOneFace)
{
    RenderGeometryArrays arrays;
    // Two triangles with vertices of their own; two of each are at the same places.
    arrays.positions = {SbVec3f(0, 0, 0), SbVec3f(1, 0, 0), SbVec3f(0, 1, 0),
                        SbVec3f(0, 1, 0), SbVec3f(1, 0, 0), SbVec3f(1, 1, 0)};
    const RenderGeometry geometry(std::move(arrays));
    const std::vector<std::uint32_t> edges = geometry.edges();
    ASSERT_EQ(10u, edges.size());
    for (std::size_t i = 0; i < edges.size(); i += 2)
        EXPECT_EQ(edges[i] < 3, edges[i + 1] < 3) << edges[i] << ' ' << edges[i + 1];
}

TEST_F(HighlightTest, HaloOfWhatIsHiddenShowsOnlyOnTop)
{
    const DrawList::Packet chosen = list.add(scene, plain(square(0.25f), SbVec3f(1, 0, 0)));
    RenderPacket packet = plain(square(0.5f, 0.5f), SbVec3f(0, 0, 1));
    packet.matrix = moved(-0.5f, 0, 0);
    list.add(scene, packet);
    RenderHighlight halo = mark(RenderHighlight::Kind::Halo, 4);
    const int left = Size / 2 - Size / 8 - 2;
    const int right = Size / 2 + Size / 8;
    QImage picture = highlight({chosen}, halo);
    EXPECT_COLOR(picture.pixelColor(left, Size / 2), 0, 0, 255);
    EXPECT_GT(picture.pixelColor(right, Size / 2).green(), 200);
    halo.onTop = true;
    picture = highlight({chosen}, halo);
    EXPECT_GT(picture.pixelColor(left, Size / 2).green(), 100);
    EXPECT_GT(picture.pixelColor(right, Size / 2).green(), 200);
}

TEST_F(HighlightTest, LinesHaveTheirOwnPatternAndWidth)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.state.style.linePattern = 0x5555;
    const DrawList::Packet chosen = list.add(scene, packet);
    const auto greenAlongTheTop = [&](const RenderHighlight& lines) {
        const QImage picture = highlight({chosen}, lines);
        int count = 0;
        for (int x = Size / 4 + 4; x < Size * 3 / 4 - 4; ++x)
            count += picture.pixelColor(x, Size / 4).green() > 200;
        return count;
    };
    RenderHighlight lines = mark(RenderHighlight::Kind::Line, 2);
    constexpr int All = Size / 2 - 8;
    EXPECT_EQ(All, greenAlongTheTop(lines));
    lines.linePattern = 0x0f0f;
    EXPECT_NEAR(All / 2, greenAlongTheTop(lines), 4);
    lines.linePattern = 0;
    EXPECT_EQ(0, greenAlongTheTop(lines));
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
