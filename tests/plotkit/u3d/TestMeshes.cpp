#include "Exports.h"

#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoIndexedFaceSet.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Mesh = ReadFile::Mesh;

Mesh onlyMesh(const ReadFile& file)
{
    EXPECT_EQ(1u, file.meshes.size());
    return file.meshes.begin()->second;
}

std::vector<SbVec3f> cornersOf(const Mesh& mesh, std::size_t face)
{
    std::vector<SbVec3f> corners;
    for (const ReadFile::Corner& corner : mesh.faces.at(face))
        corners.push_back(mesh.positions[corner.position]);
    return corners;
}

/** A grid of squares in the plane z = 0, without anything shared between squares. */
SoSeparator* gridOf(int size)
{
    auto* root = new SoSeparator;
    auto* coordinates = new SoCoordinate3;
    auto* faces = new SoIndexedFaceSet;
    std::vector<SbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int y = 0; y <= size; ++y) {
        for (int x = 0; x <= size; ++x)
            points.emplace_back(float(x), float(y), 0.0f);
    }
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const std::int32_t at = y * (size + 1) + x;
            indices.insert(indices.end(), {at, at + 1, at + size + 2, at + size + 1, -1});
        }
    }
    coordinates->point.setValues(0, int(points.size()), points.data());
    faces->coordIndex.setValues(0, int(indices.size()), indices.data());
    root->addChild(coordinates);
    root->addChild(faces);
    return root;
}

TEST(U3DMesh, holdsATriangle)
{
    const ReadFile file = exported("Coordinate3 { point [ 0 0 0, 4 0 0, 0 2.5 0 ] } FaceSet { numVertices 3 }");
    const Mesh mesh = onlyMesh(file);
    EXPECT_EQ((std::array<std::uint32_t, 6>{1, 3, 1, 0, 0, 0}), mesh.declared);
    EXPECT_EQ(3u, mesh.resolutions[0]);
    EXPECT_EQ(3u, mesh.resolutions[1]);
    EXPECT_EQ((std::vector<SbVec3f>{{0, 0, 0}, {4, 0, 0}, {0, 2.5f, 0}}), cornersOf(mesh, 0));
    EXPECT_EQ((std::vector<SbVec3f>{{0, 0, 1}}), mesh.normals);
}

TEST(U3DMesh, hasEqualPositionsAndNormalsOnce)
{
    const Mesh mesh = onlyMesh(exported("Cube {}"));
    EXPECT_EQ((std::array<std::uint32_t, 6>{12, 8, 6, 0, 0, 0}), mesh.declared);
}

TEST(U3DMesh, hasTheNormalsOfTheGraph)
{
    const Mesh mesh = onlyMesh(exported("Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] }"
                                        "Normal { vector [ 0 0.6 0.8, 0.6 0 0.8, 0 0 1 ] }"
                                        "NormalBinding { value PER_VERTEX } FaceSet { numVertices 3 }"));
    ASSERT_EQ(3u, mesh.normals.size());
    EXPECT_LT((mesh.normals[mesh.faces[0][0].normal] - SbVec3f(0, 0.6f, 0.8f)).length(), 1e-6f);
    EXPECT_LT((mesh.normals[mesh.faces[0][1].normal] - SbVec3f(0.6f, 0, 0.8f)).length(), 1e-6f);
}

TEST(U3DMesh, hasNormalsOfFacesWhereTheGivenOnesAreNone)
{
    const Mesh mesh = onlyMesh(exported("Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] }"
                                        "Normal { vector [ 0 0 0, 0 0 0, 0 0 0 ] }"
                                        "NormalBinding { value PER_VERTEX } FaceSet { numVertices 3 }"));
    EXPECT_EQ((std::vector<SbVec3f>{{0, 0, 1}}), mesh.normals);
}

TEST(U3DMesh, goesCounterClockwiseAndShowsBacksUnlessItIsSolid)
{
    const std::string points = "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] }";
    const auto withHints = [&](const std::string& hints) {
        return exported(points + "ShapeHints { " + hints + " } FaceSet { numVertices 3 }");
    };
    ReadFile file = withHints("vertexOrdering COUNTERCLOCKWISE");
    EXPECT_EQ(3u, file.nodes.at("FaceSet").visibility);
    file = withHints("vertexOrdering COUNTERCLOCKWISE shapeType SOLID");
    EXPECT_EQ(1u, file.nodes.at("FaceSet").visibility);
    EXPECT_EQ(SbVec3f(1, 0, 0), cornersOf(onlyMesh(file), 0)[1]);
    file = withHints("vertexOrdering CLOCKWISE shapeType SOLID");
    EXPECT_EQ(1u, file.nodes.at("FaceSet").visibility);
    EXPECT_EQ(SbVec3f(0, 1, 0), cornersOf(onlyMesh(file), 0)[1]);
    file = exported("Scale { scaleFactor -1 1 1 }" + points +
                    "ShapeHints { vertexOrdering COUNTERCLOCKWISE shapeType SOLID } FaceSet { numVertices 3 }");
    EXPECT_EQ(3u, file.nodes.at("FaceSet").visibility);
}

TEST(U3DMesh, leavesOutTrianglesOfNoArea)
{
    const Mesh mesh = onlyMesh(exported("Coordinate3 { point [ 0 0 0, 1 0 0, 2 0 0, 0 1 0, 0 1 0 ] }"
                                        "IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 0, 3, 4, -1, 0, 1, 3, -1, "
                                        "1, 1, 3, -1 ] }"));
    EXPECT_EQ(1u, mesh.faces.size());
    EXPECT_EQ(3u, mesh.positions.size());
}

TEST(U3DMesh, leavesOutCoordinatesThatAreNoFiniteNumbers)
{
    SoSeparator* const root = gridOf(4);
    root->ref();
    auto* coordinates = static_cast<SoCoordinate3*>(root->getChild(0));
    const float infinite = std::numeric_limits<float>::infinity();
    coordinates->point.set1Value(0, SbVec3f(std::nanf(""), 0, 0));
    coordinates->point.set1Value(24, SbVec3f(0, infinite, 0));
    const Mesh mesh = onlyMesh(exported(root));
    EXPECT_LT(mesh.faces.size(), 32u);
    EXPECT_GE(mesh.faces.size(), 28u);
    for (const SbVec3f& position : mesh.positions)
        EXPECT_TRUE(std::isfinite(position.length()));
    root->unref();
}

TEST(U3DMesh, ofNothingButThatIsLeftOut)
{
    EXPECT_TRUE(exported("Coordinate3 { point [ 0 0 0, 1 0 0, 2 0 0 ] } FaceSet { numVertices 3 }")
                    .nodesOf(ReadFile::Node::Model)
                    .empty());
}

class U3DMeshOfSize : public testing::TestWithParam<int> {};

/** Indices are coded in another way where there are 16383 positions or more. */
TEST_P(U3DMeshOfSize, isWhole)
{
    SoSeparator* const root = gridOf(GetParam());
    root->ref();
    const ReadFile file = exported(root);
    EXPECT_EQ(std::size_t((GetParam() + 1) * (GetParam() + 1)), onlyMesh(file).positions.size());
    EXPECT_EQ("", differenceOf(seenIn(root), seenIn(file), 0));
    root->unref();
}

INSTANTIATE_TEST_SUITE_P(U3D, U3DMeshOfSize, testing::Values(1, 126, 127, 128, 270));

} // namespace
