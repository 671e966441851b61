#include "Stage.h"

#include <epoxy/gl.h>

namespace vexel {
namespace {

using SegmentTest = Stage;

TEST_F(SegmentTest, AnnotationsCoverWhatIsInFront)
{
    RenderSegment annotation;
    annotation.kind = RenderSegment::Kind::Annotation;
    const DrawList::Segment on_top = list.addSegment(annotation, scene);
    list.add(scene, plain(square(0.5f, 0.5f), SbVec3f(1, 0, 0)));
    list.add(on_top, plain(square(0.2f, -0.5f), SbVec3f(0, 1, 0)));
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0, 0), 0, 255, 0);
    EXPECT_COLOR(at(picture, 0.4f, 0), 255, 0, 0);
}

TEST_F(SegmentTest, CallbacksRunInTheirPlaceAndMaySpoilTheState)
{
    list.add(scene, plain(square(0.5f, 0), SbVec3f(1, 0, 0)));
    RenderSegment callback;
    callback.kind = RenderSegment::Kind::Callback;
    int width = 0;
    callback.callback = [&](const RenderView& seen) {
        width = seen.viewport.width;
        glEnable(GL_SCISSOR_TEST);
        glScissor(0, 0, Size, Size);
        glClearColor(0, 0, 1, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glDisable(GL_SCISSOR_TEST);
        glUseProgram(0);
        glDisable(GL_DEPTH_TEST);
    };
    list.addSegment(callback);
    const DrawList::Segment later = list.addSegment({});
    list.add(later, plain(square(0.2f, -0.5f), SbVec3f(0, 1, 0)));
    const QImage picture = draw();
    EXPECT_EQ(Size, width);
    EXPECT_COLOR(at(picture, 0.4f, 0), 0, 0, 255);
    EXPECT_COLOR(at(picture, 0, 0), 0, 255, 0);
}

TEST_F(SegmentTest, ASegmentMayHaveItsOwnCameraAndViewport)
{
    RenderSegment own;
    own.view = view;
    own.view->view = moved(0, 0, 0);
    own.view->viewport = {0, 0, Size / 2, Size / 2};
    list.add(list.addSegment(own), plain(square(1), SbVec3f(0, 1, 0)));
    list.add(scene, plain(square(0.2f), SbVec3f(1, 0, 0)));
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, -0.5f, -0.5f), 0, 255, 0);
    EXPECT_COLOR(at(picture, 0.1f, 0.1f), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0.5f, -0.5f), 0, 0, 0);
}

TEST_F(SegmentTest, SegmentsThatTakeAnotherOnesNumberStartAfresh)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.material.transparency = 0.5f;
    list.add(scene, packet);
    draw();
    list.removeSegment(scene);
    RenderSegment callback;
    callback.kind = RenderSegment::Kind::Callback;
    EXPECT_EQ(scene, list.addSegment(callback));
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
}

TEST_F(SegmentTest, OptionsOverrideTheList)
{
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 1, 1));
    packet.state.textures.resize(1);
    packet.state.textures[0].image =
        std::make_shared<const RenderImage>(1, 1, 1, 3, std::vector<std::uint8_t>{0, 0, 255});
    list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 255);
    RenderOptions options;
    options.textures = false;
    EXPECT_COLOR(at(draw(options), 0, 0), 255, 255, 255);
    options.clear = false;
    list.background.color = SbVec4f(1, 0, 0, 1);
    EXPECT_COLOR(at(draw(options), 0.9f, 0), 0, 0, 0);
}

TEST_F(SegmentTest, TwoRenderersShowOneList)
{
    const DrawList::Packet handle = list.add(scene, plain(square(0.5f), SbVec3f(1, 0, 0)));
    Renderer other;
    other.draw(list, view);
    draw();
    RenderMaterial material;
    material.diffuse = SbVec3f(0, 1, 0);
    list.setMaterial(handle, material);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 255, 0);
    other.draw(list, view);
    EXPECT_COLOR(at(target->image(), 0, 0), 0, 255, 0);
    other.release();
}

TEST_F(SegmentTest, ShapesMayDieBeforeOrAfterTheRenderer)
{
    auto shape = square(0.5f);
    const DrawList::Packet handle = list.add(scene, plain(shape, SbVec3f(1, 0, 0)));
    draw();
    list.remove(handle);
    shape.reset();
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
    list.add(scene, plain(square(0.5f), SbVec3f(0, 1, 0)));
    EXPECT_COLOR(at(draw(), 0, 0), 0, 255, 0);
    renderer->release();
    EXPECT_COLOR(at(draw(), 0, 0), 0, 255, 0);
}

TEST_F(SegmentTest, TheBoundFramebufferIsKept)
{
    list.add(scene, plain(square(0.5f), SbVec3f(1, 0, 0)));
    OffscreenTarget second(Size, Size, 4);
    second.bind();
    GLint before = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &before);
    renderer->draw(list, view);
    GLint after = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &after);
    EXPECT_EQ(before, after);
    EXPECT_EQ(GLenum(GL_NO_ERROR), glGetError());
    EXPECT_COLOR(at(second.image(), 0, 0), 255, 0, 0);
}

} // namespace
} // namespace vexel
