#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include <QtGui/QImage>

#include <vexel/render/DrawList.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>
#include <vexel/render/RenderGeometry.h>
#include <vexel/render/RenderSurroundings.h>
#include <vexel/render/Renderer.h>

namespace vexel {

/** A small off-screen picture with a draw list of one segment, seen along -z: x and y from -1 to 1, z from -1 to 1. */
class Stage : public testing::Test {
protected:
    static constexpr int Size = 64;

    void SetUp() override;
    void TearDown() override;

    /** Draws the list and returns the picture. */
    QImage draw(const RenderOptions& options = {});
    QImage highlight(const std::vector<DrawList::Packet>& packets, const RenderHighlight& mark);

    /** A packet without lights: its diffuse colour is what is seen. */
    static RenderPacket plain(std::shared_ptr<const RenderGeometry> geometry, const SbVec3f& color);

    static std::shared_ptr<const RenderGeometry> square(float half, float z = 0);
    static std::shared_ptr<const RenderGeometry> lines(const std::vector<SbVec3f>& points);
    static std::shared_ptr<const RenderGeometry> points(const std::vector<SbVec3f>& points);
    static SbMatrix moved(float x, float y, float z);

    /** Pixel at a place from -1 to 1. */
    static QColor at(const QImage& picture, float x, float y);

    DrawList list;
    DrawList::Segment scene = 0;
    RenderView view;
    std::unique_ptr<Renderer> renderer;
    std::unique_ptr<OffscreenTarget> target;

private:
    std::unique_ptr<GLContext> m_context;
    std::unique_ptr<GLContext::Scope> m_scope;
};

/** True when no component differs by more than `tolerance` of 255. */
bool isNear(const QColor& color, int red, int green, int blue, int tolerance = 2);

#define EXPECT_COLOR(color, red, green, blue)                                                                          \
    EXPECT_TRUE(isNear(color, red, green, blue)) << "is " << (color).name().toStdString()

} // namespace vexel
