#include "Stage.h"

#include <algorithm>

namespace vexel {
namespace {

class TransparencyTest : public Stage {
protected:
    /** Three half-transparent squares behind each other over white, added in the given order. */
    QColor stack(RenderStyle::Transparency mode, const std::vector<int>& order)
    {
        const SbVec3f colors[] = {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(0, 0, 1)};
        list.background.color = SbVec4f(1, 1, 1, 1);
        std::vector<DrawList::Packet> handles;
        for (const int place : order) {
            RenderPacket packet = plain(square(0.5f), colors[place]);
            packet.matrix = moved(0, 0, -0.5f + 0.4f * static_cast<float>(place));
            packet.material.transparency = 0.5f;
            packet.state.style.transparency = mode;
            handles.push_back(list.add(scene, packet));
        }
        const QColor color = at(draw(), 0, 0);
        for (const DrawList::Packet handle : handles)
            list.remove(handle);
        return color;
    }
};

TEST_F(TransparencyTest, SortedModesDoNotDependOnTheOrder)
{
    for (const auto mode : {RenderStyle::Transparency::SortedObject, RenderStyle::Transparency::SortedPixel}) {
        std::vector<int> order = {0, 1, 2};
        do {
            // Blue over green over red over white, a half each time.
            EXPECT_COLOR(stack(mode, order), 64, 96, 159);
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

TEST_F(TransparencyTest, NoneDrawsSolid)
{
    const QColor color = stack(RenderStyle::Transparency::None, {0, 1, 2});
    EXPECT_COLOR(color, 0, 0, 255);
    EXPECT_EQ(255, color.alpha());
}

TEST_F(TransparencyTest, OpaqueFirstShowsWhatIsBehind)
{
    list.background.color = SbVec4f(0, 0, 0, 1);
    RenderPacket front = plain(square(0.5f, 0.5f), SbVec3f(1, 0, 0));
    front.material.transparency = 0.5f;
    front.state.style.transparency = RenderStyle::Transparency::OpaqueFirst;
    list.add(scene, front);
    list.add(scene, plain(square(0.5f, -0.5f), SbVec3f(0, 0, 1)));
    EXPECT_COLOR(at(draw(), 0, 0), 128, 0, 127);
}

TEST_F(TransparencyTest, SortedPixelIsRightWhereSurfacesCross)
{
    list.background.color = SbVec4f(0, 0, 0, 1);
    for (const float slope : {-1.0f, 1.0f}) {
        RenderGeometryArrays arrays;
        arrays.positions = {SbVec3f(-0.8f, -0.8f, -0.8f * slope), SbVec3f(0.8f, -0.8f, 0.8f * slope),
                            SbVec3f(0.8f, 0.8f, 0.8f * slope), SbVec3f(-0.8f, 0.8f, -0.8f * slope)};
        arrays.indices = {0, 1, 2, 0, 2, 3};
        RenderPacket packet = plain(std::make_shared<const RenderGeometry>(std::move(arrays)),
                                    slope > 0 ? SbVec3f(1, 0, 0) : SbVec3f(0, 1, 0));
        packet.material.transparency = 0.5f;
        packet.state.style.transparency = RenderStyle::Transparency::SortedPixel;
        list.add(scene, packet);
    }
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0.5f, 0), 128, 64, 0);
    EXPECT_COLOR(at(picture, -0.5f, 0), 64, 128, 0);
}

TEST_F(TransparencyTest, SortedPixelStaysBehindOpaqueThingsAndInsideItsViewport)
{
    for (const int samples : {1, 4}) {
        target = std::make_unique<OffscreenTarget>(Size, Size, samples);
        list.add(scene, plain(square(0.3f, 0.5f), SbVec3f(0, 0, 1)));
        RenderPacket packet = plain(square(0.9f), SbVec3f(1, 0, 0));
        packet.material.transparency = 0.5f;
        packet.state.style.transparency = RenderStyle::Transparency::SortedPixel;
        list.add(scene, packet);
        view.viewport = {Size / 2, Size / 2, Size / 2, Size / 2};
        const QImage picture = draw();
        EXPECT_COLOR(at(picture, 0.5f, 0.5f), 0, 0, 255);
        EXPECT_COLOR(at(picture, 0.9f, 0.9f), 128, 0, 0);
        EXPECT_COLOR(at(picture, -0.5f, -0.5f), 0, 0, 0);
    }
}

TEST_F(TransparencyTest, SortedPixelHasSmoothEdgesOnAMultisampledTarget)
{
    target = std::make_unique<OffscreenTarget>(Size, Size, 4);
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.matrix[0][1] = 0.2f;
    packet.material.transparency = 0.5f;
    packet.state.style.transparency = RenderStyle::Transparency::SortedPixel;
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0, 0), 128, 0, 0);
    int between = 0;
    for (int x = Size / 4 + 1; x < Size * 3 / 4; ++x) {
        for (int y = 0; y < Size; ++y) {
            const int red = picture.pixelColor(x, y).red();
            between += red > 20 && red < 108;
        }
    }
    EXPECT_GT(between, Size / 4);
}

TEST_F(TransparencyTest, ColourChangeReachesSortedPackets)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.material.transparency = 0.5f;
    const DrawList::Packet handle = list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 128, 0, 0);
    packet.material.diffuse = SbVec3f(0, 1, 0);
    list.setMaterial(handle, packet.material);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 128, 0);
    packet.material.transparency = 0;
    list.setMaterial(handle, packet.material);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 255, 0);
}

TEST_F(TransparencyTest, VertexAlphaMakesAPacketTransparent)
{
    RenderGeometryArrays arrays = square(0.5f)->arrays();
    arrays.colors.assign(4, 0x8000ff00u);
    list.add(scene, plain(std::make_shared<const RenderGeometry>(std::move(arrays)), SbVec3f(1, 0, 0)));
    EXPECT_COLOR(at(draw(), 0, 0), 0, 128, 0);
}

} // namespace
} // namespace vexel
