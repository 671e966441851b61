#include "Exports.h"

#include <vexel/nodes/SoPointLight.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Node = ReadFile::Node;

/** Where a place in a node's space is in the world. */
SbVec3f placed(const ReadFile& file, const std::string& node, const SbVec3f& point)
{
    SbVec3f result;
    file.worldMatrix(node).multVecMatrix(point, result);
    return result;
}

bool isNear(const SbVec3f& a, const SbVec3f& b)
{
    return (a - b).length() < 1e-5f;
}

TEST(U3DLight, shinesAsInTheGraph)
{
    const ReadFile file = exported(
        "Environment { attenuation 0.25 0.5 1 } Translation { translation 1 2 3 }"
        "DEF sun DirectionalLight { direction 1 0 0 color 1 0.5 0.25 intensity 0.75 }"
        "DEF bulb PointLight { location 0 1 0 } DEF lamp SpotLight { location 0 0 5 direction 0 -1 0 cutOffAngle 0.5 }"
        "DEF night PointLight { on FALSE } Cube {}");
    EXPECT_EQ((std::vector<std::string>{"sun", "bulb", "lamp", "Ambient"}), file.nodesOf(Node::Light));

    const ReadFile::Light& sun = file.lights.at("sun");
    EXPECT_EQ(1u, sun.type);
    EXPECT_EQ(3u, sun.attributes);
    EXPECT_EQ(SbVec3f(1, 0.5f, 0.25f), sun.color);
    EXPECT_EQ(0.75f, sun.intensity);
    EXPECT_TRUE(isNear(SbVec3f(2, 2, 3), placed(file, "sun", SbVec3f(0, 0, -1))));

    EXPECT_EQ(2u, file.lights.at("bulb").type);
    EXPECT_EQ(SbVec3f(1, 0.5f, 0.25f), file.lights.at("bulb").attenuation);
    EXPECT_TRUE(isNear(SbVec3f(1, 3, 3), placed(file, "bulb", SbVec3f(0, 0, 0))));

    EXPECT_EQ(3u, file.lights.at("lamp").type);
    EXPECT_NEAR(180 / M_PI, file.lights.at("lamp").spotAngle, 1e-4);
    EXPECT_TRUE(isNear(SbVec3f(1, 2, 8), placed(file, "lamp", SbVec3f(0, 0, 0))));
    EXPECT_TRUE(isNear(SbVec3f(1, 1, 8), placed(file, "lamp", SbVec3f(0, 0, -1))));
}

TEST(U3DLight, fromEverywhereIsThatOfTheEnvironment)
{
    ReadFile file = exported("Cube {}");
    EXPECT_EQ(0u, file.lights.at("Ambient").type);
    EXPECT_EQ(0.2f, file.lights.at("Ambient").intensity);
    file = exported("Environment { ambientIntensity 0.5 ambientColor 1 0 0 } Cube {}");
    EXPECT_EQ(0.5f, file.lights.at("Ambient").intensity);
    EXPECT_EQ(SbVec3f(1, 0, 0), file.lights.at("Ambient").color);
}

TEST(U3DLight, thatIsSwitchedOffOrNowhereIsLeftOut)
{
    const ReadScene scene = ReadScene::ofText("PointLight { on FALSE } PointLight { location 0 0 0 } Cube {}");
    static_cast<SoPointLight*>(scene.root()->getChild(1))->location = SbVec3f(std::nanf(""), 0, 0);
    EXPECT_EQ((std::vector<std::string>{"Ambient"}), exported(scene.root()).nodesOf(Node::Light));
}

TEST(U3DLight, isGivenToGraphsWithoutOne)
{
    EXPECT_EQ(1u, exported("Cube {}").lights.count("DirectionalLight"));
    EXPECT_EQ(0u, exported("PointLight {} Cube {}").lights.count("DirectionalLight"));
}

TEST(U3DView, isThatOfTheCamera)
{
    const ReadFile file = exported("DEF front PerspectiveCamera { position 0 0 10 heightAngle 0.5 nearDistance 2"
                                   "  farDistance 20 } Cube {}");
    ASSERT_EQ((std::vector<std::string>{"front"}), file.nodesOf(Node::View));
    const Node& view = file.nodes.at("front");
    EXPECT_EQ("", file.views.at("front"));
    EXPECT_EQ(0u, view.viewAttributes);
    EXPECT_NEAR(2, view.viewNumbers[0], 1e-5);
    EXPECT_NEAR(20, view.viewNumbers[1], 1e-4);
    EXPECT_NEAR(0.5 * 180 / M_PI, view.viewNumbers[2], 1e-4);
    EXPECT_EQ(1208, view.viewNumbers[3]);
    EXPECT_EQ(1024, view.viewNumbers[4]);
    EXPECT_TRUE(isNear(SbVec3f(0, 0, 10), placed(file, "front", SbVec3f(0, 0, 0))));
}

TEST(U3DView, looksAndStandsAsTheCameraDoes)
{
    const ReadFile file = exported("Translation { translation 0 3 0 }"
                                   "DEF side OrthographicCamera { position 5 0 0 orientation 0 1 0 1.5707963 height 4 }"
                                   "Cube {}");
    EXPECT_EQ(2u, file.nodes.at("side").viewAttributes);
    EXPECT_NEAR(4, file.nodes.at("side").viewNumbers[2], 1e-5);
    EXPECT_TRUE(isNear(SbVec3f(5, 3, 0), placed(file, "side", SbVec3f(0, 0, 0))));
    EXPECT_TRUE(isNear(SbVec3f(4, 3, 0), placed(file, "side", SbVec3f(0, 0, -1))));
    EXPECT_TRUE(isNear(SbVec3f(5, 4, 0), placed(file, "side", SbVec3f(0, 1, 0))));
}

TEST(U3DView, isGivenToGraphsWithoutOne)
{
    const ReadFile file = exported("Translation { translation 100 0 0 } Cube {}");
    ASSERT_EQ((std::vector<std::string>{"PerspectiveCamera"}), file.nodesOf(Node::View));
    const SbVec3f eye = placed(file, "PerspectiveCamera", SbVec3f(0, 0, 0));
    EXPECT_NEAR(100, eye[0], 1e-3);
    EXPECT_GT(eye[2], 1);
}

} // namespace
