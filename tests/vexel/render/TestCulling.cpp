#include "Stage.h"

#include <cmath>

namespace vexel {
namespace {

class CullingTest : public Stage {
protected:
    static constexpr int Side = 100;

    /** A carpet of little squares that is far wider than the view. */
    void addCarpet(bool instanced)
    {
        const auto shared = square(0.04f);
        for (int row = 0; row < Side; ++row) {
            for (int column = 0; column < Side; ++column) {
                RenderPacket packet =
                    plain(instanced ? shared : square(0.04f), SbVec3f(float(row) / Side, float(column) / Side, 0.5f));
                packet.matrix = moved(0.1f * (column - Side / 2), 0.1f * (row - Side / 2), 0);
                list.add(scene, packet);
            }
        }
    }
};

TEST_F(CullingTest, InstancesLookLikeSingles)
{
    addCarpet(true);
    const QImage together = draw();
    list.removeSegment(scene);
    scene = list.addSegment({});
    addCarpet(false);
    EXPECT_EQ(together, draw());
}

TEST_F(CullingTest, WhatIsInSightIsDrawnWhereverTheCameraLooks)
{
    addCarpet(true);
    for (const float x : {-4.9f, -2.03f, 0.0f, 3.3f, 4.8f}) {
        view.view = moved(-x, -x / 2, 0);
        const QImage picture = draw();
        const int column = static_cast<int>(std::floor(x / 0.1f + 0.5f)) + Side / 2;
        const int row = static_cast<int>(std::floor(x / 2 / 0.1f + 0.5f)) + Side / 2;
        const float dx = 0.1f * (column - Side / 2) - x;
        const float dy = 0.1f * (row - Side / 2) - x / 2;
        EXPECT_COLOR(at(picture, dx, dy), 255 * row / Side, 255 * column / Side, 128);
    }
    view.view = moved(100, 0, 0);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
}

TEST_F(CullingTest, FarFromTheOriginThingsAreAsExactAsNearIt)
{
    const auto show = [&](float away) {
        for (const float half : {0.613f, 0.317f, 0.123f}) {
            RenderPacket packet = plain(square(half, 0.5f - half), SbVec3f(1, half, 0));
            packet.matrix = moved(away, -away, away);
            list.add(scene, packet);
        }
        view.view = moved(-away, away, -away);
        const QImage picture = draw();
        list.removeSegment(scene);
        scene = list.addSegment({});
        return picture;
    };
    EXPECT_EQ(show(0), show(1e6f));
}

TEST_F(CullingTest, BrokenCoordinatesHideNothingElse)
{
    RenderGeometryArrays arrays = square(0.5f)->arrays();
    const float nan = std::nanf("");
    arrays.positions.emplace_back(nan, nan, nan);
    arrays.normals.emplace_back(0.0f, 0.0f, 1.0f);
    arrays.textureCoordinates.emplace_back();
    arrays.indices.insert(arrays.indices.end(), {0, 1, 4, 7, 8, 9, 0});
    list.add(scene, plain(std::make_shared<const RenderGeometry>(std::move(arrays)), SbVec3f(1, 0, 0)));
    list.add(scene, plain(square(0.1f, 0.5f), SbVec3f(0, 1, 0)));
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0, 0), 0, 255, 0);
    EXPECT_COLOR(at(picture, 0.3f, -0.2f), 255, 0, 0);
}

TEST_F(CullingTest, EmptyShapesAreHarmless)
{
    list.add(scene, plain(std::make_shared<const RenderGeometry>(RenderGeometryArrays()), SbVec3f(1, 0, 0)));
    list.add(scene, plain(points({}), SbVec3f(1, 0, 0)));
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
}

TEST_F(CullingTest, ClipPlanesCut)
{
    RenderSurroundings::Values values;
    values.clipPlanes = {SbVec4f(1, 0, 0, -0.25f), SbVec4f(0, -1, 0, 0.25f)};
    RenderPacket packet = plain(square(0.5f), SbVec3f(1, 0, 0));
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0.3f, 0.2f), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0.2f, 0.2f), 0, 0, 0);
    EXPECT_COLOR(at(picture, 0.3f, 0.3f), 0, 0, 0);
}

} // namespace
} // namespace vexel
