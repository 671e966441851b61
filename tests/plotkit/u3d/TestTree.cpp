#include "Exports.h"

#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMatrixTransform.h>
#include <vexel/nodes/SoTranslation.h>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;
using Node = ReadFile::Node;

SbVec3f originOf(const ReadFile& file, const std::string& node)
{
    const SbMatrix matrix = file.worldMatrix(node);
    return {matrix[3][0], matrix[3][1], matrix[3][2]};
}

TEST(U3DTree, hasGroupsAndModelsWithTheirNames)
{
    const ReadFile file = exported("DEF house Separator { DEF wing Group { Cube {} DEF door Cube {} } Sphere {} }"
                                   "DEF tree Separator { Cone {} }");
    EXPECT_EQ((Names{"Separator", "house", "wing", "tree"}), file.nodesOf(Node::Group));
    EXPECT_EQ((Names{"Cube", "door", "Sphere", "Cone"}), file.nodesOf(Node::Model));
    EXPECT_EQ((Names{"house", "tree"}), file.childrenOf("Separator"));
    EXPECT_EQ((Names{"wing", "Sphere"}), file.childrenOf("house"));
    EXPECT_EQ((Names{"Cube", "door"}), file.childrenOf("wing"));
    EXPECT_EQ((Names{"Cone"}), file.childrenOf("tree"));
}

TEST(U3DTree, hasEachNameOnce)
{
    auto* root = new SoSeparator;
    root->ref();
    for (const char* const name : {"a", "a", "a 2", "a", "\u00fc\u4e16", "b\xff"}) {
        auto* cube = new SoCube;
        cube->setName(name);
        root->addChild(cube);
    }
    root->addChild(new SoCube);
    root->addChild(new SoCube);
    const ReadFile file = exported(root);
    EXPECT_EQ((Names{"a", "a 2", "a 2 2", "a 3", "\u00fc\u4e16", "b\ufffd", "Cube", "Cube 2"}),
              file.nodesOf(Node::Model));
    root->unref();
}

TEST(U3DTree, cutsNamesThatAreTooLong)
{
    auto* root = new SoSeparator;
    root->ref();
    for (int i = 0; i < 2; ++i) {
        auto* cube = new SoCube;
        std::string name;
        for (int k = 0; k < 30000; ++k)
            name += "\u4e16";
        cube->setName(name.c_str());
        root->addChild(cube);
    }
    const Names names = exported(root).nodesOf(Node::Model);
    ASSERT_EQ(2u, names.size());
    EXPECT_EQ(48000u, names[0].size());
    EXPECT_EQ(names[0] + " 2", names[1]);
    root->unref();
}

TEST(U3DTree, leavesOutWhatShowsNothing)
{
    const ReadFile file = exported("Separator { Group { Material {} } DEF seen Group { Cube {} } }"
                                   "Switch { whichChild 1 Sphere {} DEF shown Cone {} }"
                                   "Separator { DrawStyle { style INVISIBLE } Cylinder {} }"
                                   "Separator { FaceSet { numVertices [] } }");
    EXPECT_EQ((Names{"Separator", "Separator 2", "seen", "Switch"}), file.nodesOf(Node::Group));
    EXPECT_EQ((Names{"Cube", "shown"}), file.nodesOf(Node::Model));
}

TEST(U3DTree, hasTransformsWhereTheyTakeEffect)
{
    const ReadFile file = exported("Translation { translation 1 0 0 }"
                                   "DEF outer Separator { Translation { translation 0 2 0 } DEF a Cube {}"
                                   "  DEF inner Separator { Scale { scaleFactor 2 2 2 } DEF b Cube {}"
                                   "    Translation { translation 0 0 3 } DEF c Cube {} } DEF d Cube {} }");
    EXPECT_EQ(SbVec3f(1, 0, 0), originOf(file, "outer"));
    EXPECT_EQ(SbVec3f(1, 2, 0), originOf(file, "inner"));
    EXPECT_EQ(SbVec3f(1, 2, 0), originOf(file, "a"));
    EXPECT_EQ(SbVec3f(1, 2, 0), originOf(file, "b"));
    EXPECT_EQ(SbVec3f(1, 2, 6), originOf(file, "c"));
    EXPECT_EQ(SbVec3f(1, 2, 0), originOf(file, "d"));
    EXPECT_EQ(SbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 2, 0, 1), file.nodes.at("inner").matrix);
    EXPECT_EQ(SbMatrix(2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 6, 1), file.nodes.at("c").matrix);
}

TEST(U3DTree, holdsWhatATransformMakesFlat)
{
    const std::string text = "Translation { translation 5 0 0 } Scale { scaleFactor 1 0 1 }"
                             "DEF flat Separator { Translation { translation 0 0 2 } DEF slab Cube {} }";
    const ReadFile file = exported(text);
    EXPECT_EQ(SbVec3f(5, 0, 2), originOf(file, "slab"));
    EXPECT_EQ(0, file.worldMatrix("slab")[1][1]);
    EXPECT_EQ(SbMatrix(), file.nodes.at("flat").matrix);
}

TEST(U3DTree, leavesOutWhatIsNowhere)
{
    auto* root = new SoSeparator;
    root->ref();
    auto* inner = new SoSeparator;
    auto* transform = new SoMatrixTransform;
    SbMatrix matrix;
    matrix[3][0] = std::numeric_limits<float>::quiet_NaN();
    transform->matrix = matrix;
    inner->addChild(transform);
    inner->addChild(new SoCube);
    root->addChild(inner);
    root->addChild(new SoCube);
    EXPECT_EQ((Names{"Cube"}), exported(root).nodesOf(Node::Model));
    root->unref();
}

TEST(U3DTree, sharesMeshesOfShapesThatAreAlike)
{
    const ReadFile file = exported("DEF part Separator { Sphere {} } Translation { translation 3 0 0 } USE part "
                                   "Separator { Material { diffuseColor 1 0 0 } Sphere {} } Sphere { radius 2 }");
    EXPECT_EQ(4u, file.nodesOf(Node::Model).size());
    EXPECT_EQ(2u, file.meshes.size());
    EXPECT_EQ("Sphere", file.nodes.at("Sphere 2").resource);
    EXPECT_EQ("Sphere", file.nodes.at("Sphere 3").resource);
    EXPECT_EQ((Names{"Separator", "part", "part 2", "Separator 2"}), file.nodesOf(Node::Group));
    EXPECT_EQ(SbVec3f(3, 0, 0), originOf(file, "Sphere 2"));
    EXPECT_NE(file.nodes.at("Sphere").shaders, file.nodes.at("Sphere 3").shaders);
}

TEST(U3DTree, isAsDeepAsTheGraph)
{
    constexpr int Depth = 3000;
    auto* root = new SoSeparator;
    root->ref();
    SoSeparator* bottom = root;
    for (int i = 0; i < Depth; ++i) {
        auto* next = new SoSeparator;
        auto* step = new SoTranslation;
        step->translation = SbVec3f(1, 0, 0);
        bottom->addChild(step);
        bottom->addChild(next);
        bottom = next;
    }
    bottom->addChild(new SoCube);
    const ReadFile file = exported(root);
    EXPECT_EQ(std::size_t(Depth + 1), file.nodesOf(Node::Group).size());
    EXPECT_EQ(SbVec3f(Depth, 0, 0), originOf(file, "Cube"));
    root->unref();
}

TEST(U3DTree, canBeEmpty)
{
    const ReadFile file = exported("Separator {}");
    EXPECT_TRUE(file.nodesOf(Node::Model).empty());
    EXPECT_TRUE(file.nodesOf(Node::Group).empty());
}

} // namespace
