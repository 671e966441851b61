#include "Stage.h"

#include <vexel/render/OffscreenPicture.h>

namespace vexel {
namespace {

class OffscreenPictureTest : public Stage {
protected:
    void addThings()
    {
        list.background.kind = RenderBackground::Kind::Gradient;
        list.background.topColor = SbVec4f(0.4f, 0.5f, 0.6f, 1);
        for (int i = 0; i < 40; ++i) {
            const float place = -0.95f + 0.05f * static_cast<float>(i);
            RenderPacket packet = plain(square(0.06f), SbVec3f(1, 0.02f * static_cast<float>(i), 0));
            packet.matrix = moved(place, 0.8f * place, 0);
            list.add(scene, packet);
            RenderPacket stroke = plain(lines({SbVec3f(place, -0.9f, 0), SbVec3f(-place, 0.9f, 0)}), SbVec3f(0, 1, 0));
            stroke.state.style.lineWidth = 3;
            list.add(scene, stroke);
        }
    }

    QImage picture(int width, int height, int tileSize)
    {
        OffscreenPicture wanted{width, height, 1, tileSize};
        return drawPicture(wanted, view, [&](const RenderView& piece) { renderer->draw(list, piece); });
    }
};

TEST_F(OffscreenPictureTest, PiecesFitTogether)
{
    addThings();
    const QImage whole = picture(300, 200, 2048);
    const QImage tiled = picture(300, 200, 70);
    ASSERT_EQ(QSize(300, 200), tiled.size());
    int different = 0;
    for (int y = 0; y < whole.height(); ++y) {
        for (int x = 0; x < whole.width(); ++x) {
            const QColor color = tiled.pixelColor(x, y);
            different += !isNear(whole.pixelColor(x, y), color.red(), color.green(), color.blue(), 3);
        }
    }
    // Rounding may move a few pixels of slanted edges.
    EXPECT_LT(different, 300 * 200 / 200);
    EXPECT_NE(whole.pixelColor(150, 100), whole.pixelColor(3, 3));
}

TEST_F(OffscreenPictureTest, LargerThanTheDriverAllows)
{
    list.background.color = SbVec4f(0, 0, 1, 1);
    list.add(scene, plain(square(0.5f), SbVec3f(1, 0, 0)));
    const int width = OffscreenTarget::maxSize() + 100;
    const QImage wide = picture(width, 20, 1 << 20);
    ASSERT_EQ(QSize(width, 20), wide.size());
    EXPECT_COLOR(wide.pixelColor(width / 2, 10), 255, 0, 0);
    EXPECT_COLOR(wide.pixelColor(width / 4 + 5, 10), 255, 0, 0);
    EXPECT_COLOR(wide.pixelColor(width / 4 - 5, 10), 0, 0, 255);
    EXPECT_COLOR(wide.pixelColor(width - 1, 10), 0, 0, 255);
}

TEST_F(OffscreenPictureTest, SamplesSmoothEdges)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 1, 1));
    packet.matrix[0][1] = 0.1f;
    list.add(scene, packet);
    OffscreenPicture wanted{100, 100, 4, 2048};
    const QImage smooth = drawPicture(wanted, view, [&](const RenderView& piece) { renderer->draw(list, piece); });
    int between = 0;
    for (int x = 0; x < 100; ++x) {
        for (int y = 0; y < 100; ++y) {
            const int red = smooth.pixelColor(x, y).red();
            between += red > 40 && red < 215;
        }
    }
    EXPECT_GT(between, 20);
}

TEST(GLContextTest, ScopesNestAndGiveBackWhatWasCurrent)
{
    std::string error;
    const auto first = GLContext::create(error);
    const auto second = GLContext::create(error);
    ASSERT_TRUE(first && second) << error;
    const GLContext::Scope outer(*first);
    const OffscreenTarget red(8, 8);
    {
        const GLContext::Scope inner(*second);
        ASSERT_TRUE(inner.isCurrent());
        const OffscreenTarget other(4, 4);
        EXPECT_EQ(QSize(4, 4), other.image().size());
    }
    DrawList list;
    list.background.color = SbVec4f(1, 0, 0, 1);
    RenderView view;
    view.viewport = {0, 0, 8, 8};
    Renderer renderer;
    red.bind();
    renderer.draw(list, view);
    EXPECT_COLOR(red.image().pixelColor(4, 4), 255, 0, 0);
    renderer.release();
}

} // namespace
} // namespace vexel
