#include "Stage.h"

#include <cmath>

#include <vexel/base/SbRotation.h>

namespace vexel {
namespace {

class LightingTest : public Stage {
protected:
    /** Colour in the middle of a square that looks at the viewer, under the given surroundings. */
    QColor lit(const RenderSurroundings::Values& values, const RenderMaterial& material)
    {
        RenderPacket packet;
        packet.geometry = square(0.8f);
        packet.material = material;
        packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
        const DrawList::Packet handle = list.add(scene, packet);
        const QColor color = at(draw(), 0.01f, 0.01f);
        list.remove(handle);
        return color;
    }

    static RenderSurroundings::Values dark()
    {
        RenderSurroundings::Values values;
        values.ambient = SbVec3f(0, 0, 0);
        return values;
    }

    static RenderMaterial diffuse(const SbVec3f& color)
    {
        RenderMaterial material;
        material.ambient = SbVec3f(0, 0, 0);
        material.diffuse = color;
        return material;
    }
};

TEST_F(LightingTest, AmbientAndEmissiveLightNeedNoLamp)
{
    RenderSurroundings::Values values;
    values.ambient = SbVec3f(0.5f, 0.5f, 0.5f);
    RenderMaterial material = diffuse(SbVec3f(1, 1, 1));
    material.ambient = SbVec3f(0.4f, 0, 0);
    material.emissive = SbVec3f(0, 0.2f, 0);
    EXPECT_COLOR(lit(values, material), 51, 51, 0);
}

TEST_F(LightingTest, DirectionalLightFollowsTheCosine)
{
    RenderSurroundings::Values values = dark();
    RenderLight light;
    light.direction = SbVec3f(0, -std::sin(1.0f), -std::cos(1.0f));
    values.lights.push_back(light);
    const int expected = static_cast<int>(std::lround(204 * std::cos(1.0f)));
    EXPECT_COLOR(lit(values, diffuse(SbVec3f(0.8f, 0, 0))), expected, 0, 0);
}

TEST_F(LightingTest, BacksAreLitUnlessOneSided)
{
    RenderSurroundings::Values values = dark();
    values.lights.emplace_back();
    RenderPacket packet;
    packet.geometry = square(0.8f);
    packet.matrix.setRotate(SbRotation(SbVec3f(0, 1, 0), 3.14159265f));
    packet.material = diffuse(SbVec3f(1, 1, 1));
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    const DrawList::Packet handle = list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 255, 255, 255);
    packet.state.style.twoSided = false;
    list.setState(handle, packet.state);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
    packet.state.style.cull = RenderStyle::Cull::Back;
    list.background.color = SbVec4f(0, 0, 1, 1);
    list.setState(handle, packet.state);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 255);
}

TEST_F(LightingTest, MirroredShapesKeepFrontAndBack)
{
    RenderSurroundings::Values values = dark();
    values.lights.emplace_back();
    RenderPacket packet;
    packet.geometry = square(0.8f);
    packet.matrix[0][0] = -1;
    packet.material = diffuse(SbVec3f(1, 1, 1));
    packet.state.style.twoSided = false;
    packet.state.style.cull = RenderStyle::Cull::Back;
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 255, 255, 255);
}

TEST_F(LightingTest, NormalsSurviveUnevenScaling)
{
    // A slope of 45 degrees that is squeezed to a slope of 1 in 2.
    RenderGeometryArrays arrays;
    const float s = std::sqrt(0.5f);
    arrays.positions = {SbVec3f(-1, -1, 1), SbVec3f(1, -1, -1), SbVec3f(1, 1, -1), SbVec3f(-1, 1, 1)};
    arrays.normals.assign(4, SbVec3f(s, 0, s));
    arrays.indices = {0, 1, 2, 0, 2, 3};
    RenderSurroundings::Values values = dark();
    values.lights.emplace_back();
    RenderPacket packet;
    packet.geometry = std::make_shared<const RenderGeometry>(std::move(arrays));
    packet.matrix[2][2] = 0.5f;
    packet.material = diffuse(SbVec3f(1, 1, 1));
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    const DrawList::Packet handle = list.add(scene, packet);
    const int expected = static_cast<int>(std::lround(255 * 2 / std::sqrt(5.0f)));
    EXPECT_COLOR(at(draw(), 0, 0), expected, expected, expected);
    packet.state.style.flat = true;
    list.setState(handle, packet.state);
    EXPECT_COLOR(at(draw(), 0, 0), expected, expected, expected);
}

TEST_F(LightingTest, PointLightFadesWithDistance)
{
    RenderSurroundings::Values values = dark();
    values.attenuation = {1, 0, 0};
    RenderLight light;
    light.kind = RenderLight::Kind::Point;
    light.position = SbVec3f(0, 0, 2);
    values.lights.push_back(light);
    EXPECT_COLOR(lit(values, diffuse(SbVec3f(1, 1, 1))), 64, 64, 64);
}

TEST_F(LightingTest, SpotLightEndsAtItsCone)
{
    RenderSurroundings::Values values = dark();
    RenderLight light;
    light.kind = RenderLight::Kind::Spot;
    light.position = SbVec3f(0, 0, 1);
    light.cutOffAngle = 0.4f;
    values.lights.push_back(light);
    RenderPacket packet;
    packet.geometry = square(1);
    packet.material = diffuse(SbVec3f(1, 1, 1));
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    list.add(scene, packet);
    const QImage picture = draw();
    EXPECT_COLOR(at(picture, 0, 0), 255, 255, 255);
    EXPECT_GT(at(picture, 0.38f, 0).red(), 150);
    EXPECT_COLOR(at(picture, 0.48f, 0), 0, 0, 0);
}

TEST_F(LightingTest, HighlightIsWhereTheMirrorImageOfTheLampIs)
{
    RenderSurroundings::Values values = dark();
    values.lights.emplace_back();
    RenderMaterial material = diffuse(SbVec3f(0, 0, 0));
    material.specular = SbVec3f(0, 1, 0);
    material.shininess = 0.5f;
    EXPECT_COLOR(lit(values, material), 0, 255, 0);
    values.lights[0].direction = SbVec3f(0, -1, -1);
    const double expected = 255 * std::pow(std::cos(0.7853982 / 2), 64);
    EXPECT_NEAR(lit(values, material).green(), expected, 3);
}

TEST_F(LightingTest, LightsOfAllKindsAddUp)
{
    RenderSurroundings::Values values = dark();
    for (const auto kind : {RenderLight::Kind::Spot, RenderLight::Kind::Directional, RenderLight::Kind::Point}) {
        RenderLight light;
        light.kind = kind;
        light.position = SbVec3f(0, 0, 1);
        light.color = SbVec3f(kind == RenderLight::Kind::Spot, kind == RenderLight::Kind::Directional,
                              kind == RenderLight::Kind::Point);
        values.lights.push_back(light);
    }
    EXPECT_COLOR(lit(values, diffuse(SbVec3f(0.4f, 0.6f, 0.8f))), 102, 153, 204);
}

TEST_F(LightingTest, ChangedSurroundingsShowInTheNextFrame)
{
    RenderSurroundings::Values values = dark();
    values.lights.emplace_back();
    const auto surroundings = std::make_shared<RenderSurroundings>(values);
    RenderPacket packet;
    packet.geometry = square(0.8f);
    packet.material = diffuse(SbVec3f(1, 1, 1));
    packet.state.surroundings = surroundings;
    list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 255, 255, 255);
    values.lights[0].color = SbVec3f(0, 0.4f, 0);
    surroundings->set(values);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 102, 0);
}

TEST_F(LightingTest, FogHidesWithDistance)
{
    RenderSurroundings::Values values = dark();
    values.fog.kind = RenderFog::Kind::Haze;
    values.fog.color = SbVec3f(0, 0, 1);
    values.fog.visibility = 2;
    RenderPacket packet = plain(square(0.8f, -0.5f), SbVec3f(1, 0, 0));
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 191, 0, 64);
}

} // namespace
} // namespace vexel
