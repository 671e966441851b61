#include "Exports.h"

#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr std::uint32_t Lit = 1;
constexpr std::uint32_t Vertex_colors = 4;

TEST(U3DMaterial, hasAllValues)
{
    const ReadFile file = exported("DEF brass Material { ambientColor 0.1 0.2 0.3 diffuseColor 0.4 0.5 0.6"
                                   "  specularColor 0.7 0.8 0.9 emissiveColor 0.05 0.15 0.25 shininess 0.35"
                                   "  transparency 0.25 } Cube {}");
    EXPECT_EQ((std::vector<std::string>{"brass"}), file.nodes.at("Cube").shaders);
    EXPECT_EQ(Lit, file.shaderOf("Cube").attributes);
    const ReadFile::Material& material = file.materialOf("Cube");
    EXPECT_EQ(SbVec3f(0.1f, 0.2f, 0.3f), material.ambient);
    EXPECT_EQ(SbVec3f(0.4f, 0.5f, 0.6f), material.diffuse);
    EXPECT_EQ(SbVec3f(0.7f, 0.8f, 0.9f), material.specular);
    EXPECT_EQ(SbVec3f(0.05f, 0.15f, 0.25f), material.emissive);
    EXPECT_EQ(0.35f, material.reflectivity);
    EXPECT_EQ(0.75f, material.opacity);
}

TEST(U3DMaterial, isWrittenOnceForAllThatLooksAlike)
{
    const ReadFile file = exported("Separator { Material { diffuseColor 1 0 0 } Cube {} Sphere {} }"
                                   "Separator { Material { diffuseColor 1 0 0 } Cone {} }"
                                   "Separator { Material { diffuseColor 0 1 0 } Cylinder {} }");
    EXPECT_EQ(2u, file.shaders.size());
    EXPECT_EQ(2u, file.materials.size());
    EXPECT_EQ(file.nodes.at("Cube").shaders, file.nodes.at("Cone").shaders);
    EXPECT_EQ(SbVec3f(0, 1, 0), file.materialOf("Cylinder").diffuse);
}

TEST(U3DMaterial, keepsToItsRange)
{
    auto* root = new SoSeparator;
    root->ref();
    auto* material = new SoMaterial;
    material->diffuseColor = SbColor(2, -1, std::nanf(""));
    material->specularColor = SbColor(INFINITY, 0.5f, 0);
    material->shininess = -4.0f;
    material->transparency = 3.0f;
    root->addChild(material);
    root->addChild(new SoCube);
    const ReadFile file = exported(root);
    const ReadFile::Material& read = file.materialOf("Cube");
    EXPECT_EQ(SbVec3f(1, 0, 0), read.diffuse);
    EXPECT_EQ(SbVec3f(1, 0.5f, 0), read.specular);
    EXPECT_EQ(0, read.reflectivity);
    EXPECT_EQ(0, read.opacity);
    root->unref();
}

TEST(U3DMaterial, givesItsColorOffWhereThereIsNoLight)
{
    const ReadFile file = exported("LightModel { model BASE_COLOR } Material { diffuseColor 0.2 0.4 0.6 } Cube {}");
    EXPECT_EQ(0u, file.shaderOf("Cube").attributes);
    EXPECT_EQ(SbVec3f(0.2f, 0.4f, 0.6f), file.materialOf("Cube").diffuse);
    EXPECT_EQ(SbVec3f(0.2f, 0.4f, 0.6f), file.materialOf("Cube").emissive);
    EXPECT_EQ(SbVec3f(0, 0, 0), file.materialOf("Cube").ambient);
}

TEST(U3DMaterial, isThatOfVerticesWhereThereAreSeveral)
{
    const ReadFile file =
        exported("Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] transparency [ 0, 0.5, 0 ] specularColor 0 0.5 0 }"
                 "MaterialBinding { value PER_VERTEX }"
                 "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] } FaceSet { numVertices 3 }");
    const ReadFile::Mesh& mesh = file.meshes.at("FaceSet");
    EXPECT_EQ(1u, mesh.shadingAttributes);
    ASSERT_EQ(3u, mesh.colors.size());
    const std::array<SbVec4f, 3> expected{SbVec4f(1, 0, 0, 1), SbVec4f(0, 1, 0, 0.5f), SbVec4f(0, 0, 1, 1)};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(expected[i], mesh.colors[mesh.faces[0][i].color]) << i;
    EXPECT_EQ(Lit | Vertex_colors, file.shaderOf("FaceSet").attributes);
    EXPECT_EQ(SbVec3f(0, 0.5f, 0), file.materialOf("FaceSet").specular);
    EXPECT_EQ(1, file.materialOf("FaceSet").opacity);
}

TEST(U3DMaterial, isThatOfFaces)
{
    const ReadFile file = exported("PackedColor { orderedRGBA [ 0xff0000ff, 0x00ff0080 ] }"
                                   "MaterialBinding { value PER_FACE }"
                                   "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0, 0 0 1 ] }"
                                   "IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 0, 1, 3, -1 ] }");
    const ReadFile::Mesh& mesh = file.meshes.at("IndexedFaceSet");
    ASSERT_EQ(2u, mesh.faces.size());
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(SbVec4f(1, 0, 0, 1), mesh.colors[mesh.faces[0][i].color]);
        EXPECT_LT((SbVec4f(0, 1, 0, 128 / 255.0f) - mesh.colors[mesh.faces[1][i].color]).length(), 1e-5f);
    }
}

TEST(U3DMaterial, isOneWhereSeveralAreTheSame)
{
    const ReadFile file = exported("Material { diffuseColor [ 0 0 1, 0 0 1 ] } MaterialBinding { value PER_FACE }"
                                   "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0, 0 0 1 ] }"
                                   "IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 0, 1, 3, -1 ] }");
    EXPECT_TRUE(file.meshes.at("IndexedFaceSet").colors.empty());
    EXPECT_EQ(Lit, file.shaderOf("IndexedFaceSet").attributes);
    EXPECT_EQ(SbVec3f(0, 0, 1), file.materialOf("IndexedFaceSet").diffuse);
}

} // namespace
