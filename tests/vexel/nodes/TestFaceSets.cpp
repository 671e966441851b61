#include "ShapeFixture.h"

#include <chrono>

namespace {

class FaceSets : public ShapeTest {};

// Eight corners of a cube of edge 2 and its six faces, counter-clockwise from outside.
const std::string CubePoints =
    "Coordinate3 { point [ -1 -1 1, 1 -1 1, 1 1 1, -1 1 1, -1 -1 -1, 1 -1 -1, 1 1 -1, -1 1 -1 ] }";
const std::string CubeFaces = "coordIndex [ 0,1,2,3,-1, 5,4,7,6,-1, 4,0,3,7,-1, 1,5,6,2,-1, 3,2,6,7,-1, 4,5,1,0 ]";

} // namespace

TEST_F(FaceSets, IndexedCubeWithoutTheLastMarkIsClosed)
{
    build(CubePoints + "IndexedFaceSet { " + CubeFaces + " }");
    EXPECT_EQ(geometry().getNumTriangles(), 12u);
    EXPECT_EQ(geometry().points.size(), 24u);
    EXPECT_EQ(geometry().outline.size(), 48u);
    EXPECT_NEAR(volume(), 8, 1e-5);
    expectNormalsOnTheFrontSide();
    EXPECT_EQ(geometry().triangleFaces, (std::vector<std::int32_t>{0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5}));
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(-1, -1, -1), SbVec3f(1, 1, 1)));
}

TEST_F(FaceSets, CreaseAngleDecidesWhatIsSmooth)
{
    build(CubePoints + "ShapeHints { creaseAngle 2 } IndexedFaceSet { " + CubeFaces + " }");
    EXPECT_EQ(geometry().points.size(), 8u);
    for (std::size_t i = 0; i < 8; ++i) {
        const SbVec3f& point = geometry().points[i];
        EXPECT_TRUE(geometry().normals[i].equals(point / point.length(), 1e-5f)) << i;
    }
    build(CubePoints + "ShapeHints { creaseAngle 1.5 } IndexedFaceSet { " + CubeFaces + " }");
    EXPECT_EQ(geometry().points.size(), 24u);
    build(CubePoints + "ShapeHints { vertexOrdering CLOCKWISE } IndexedFaceSet { coordIndex [ 0, 1, 2 ] }");
    EXPECT_EQ(geometry().normals[0], SbVec3f(0, 0, -1));
}

TEST_F(FaceSets, PointsInOnePlaceAreSmoothedTogether)
{
    build("ShapeHints { creaseAngle 3 } Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0, 0 0 0, 0 1 0, 0 0 1 ] }"
          "FaceSet { numVertices [ 3, 3 ] }");
    ASSERT_EQ(geometry().points.size(), 6u);
    EXPECT_EQ(geometry().normals[0], geometry().normals[3]);
    EXPECT_EQ(geometry().normals[2], geometry().normals[4]);
    EXPECT_NE(geometry().normals[1], geometry().normals[5]);
}

TEST_F(FaceSets, ConcaveFacesAndHolesKeepTheirArea)
{
    const std::string hint = "ShapeHints { faceType UNKNOWN_FACE_TYPE } ";
    // An L of three unit squares.
    build(hint + "Coordinate3 { point [ 0 0 0, 2 0 0, 2 1 0, 1 1 0, 1 2 0, 0 2 0 ] }"
                 "IndexedFaceSet { coordIndex [ 0, 1, 2, 3, 4, 5, -1 ] }");
    EXPECT_NEAR(area(), 3, 1e-5);
    expectNormalsOnTheFrontSide();
    EXPECT_EQ(geometry().outline.size(), 12u);
    // A square of 3 with a hole of 1, joined by a cut from corner to corner.
    build(hint + "Coordinate3 { point [ 0 0 0, 3 0 0, 3 3 0, 0 3 0, 1 1 0, 1 2 0, 2 2 0, 2 1 0 ] }"
                 "IndexedFaceSet { coordIndex [ 0, 1, 2, 3, 0, 4, 5, 6, 7, 4, -1 ] }");
    EXPECT_NEAR(area(), 8, 1e-5);
    // A bow tie crosses itself, in a point that must be made.
    build(hint + "Coordinate3 { point [ 0 0 0, 2 2 0, 2 0 0, 0 2 0 ] } IndexedFaceSet { coordIndex [ 0, 1, 2, 3 ] }");
    EXPECT_NEAR(area(), 2, 1e-5);
}

TEST_F(FaceSets, OtherFormsOfTheSameSquares)
{
    const std::string points = "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0, 1 1 0, 0 2 0, 1 2 0 ] } ";
    build(points + "TriangleStripSet { numVertices [ 6 ] }");
    EXPECT_EQ(geometry().getNumTriangles(), 4u);
    EXPECT_NEAR(area(), 2, 1e-6);
    expectNormalsOnTheFrontSide();
    build(points + "IndexedTriangleStripSet { coordIndex [ 0, 1, 2, 3, -1, 2, 3, 4, 5, -1 ] }");
    EXPECT_NEAR(area(), 2, 1e-6);
    EXPECT_EQ(geometry().normals[0], SbVec3f(0, 0, 1));
    expectNormalsOnTheFrontSide();
    build(points + "IndexedTriangleSet { coordIndex [ 0, 1, 2, -1, 2, 1, 3, 3 ] }");
    EXPECT_NEAR(area(), 1, 1e-6);
    build(points + "QuadMesh { verticesPerRow 2 verticesPerColumn 3 }");
    EXPECT_EQ(geometry().getNumTriangles(), 4u);
    EXPECT_NEAR(area(), 2, 1e-6);
    build(points + "TriangleSet { startIndex 0 }");
    EXPECT_EQ(geometry().getNumTriangles(), 2u);
    build(points + "FaceSet { startIndex 1 numVertices [ 3 ] }");
    EXPECT_EQ(geometry().getNumTriangles(), 1u);
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(0, 0, 0), SbVec3f(1, 1, 0)));
    build("FaceSet { vertexProperty VertexProperty { vertex [ 0 0 0, 1 0 0, 0 1 0 ] } }");
    EXPECT_NEAR(area(), 0.5, 1e-6);
}

TEST_F(FaceSets, WeightedCoordinatesAreDivided)
{
    build("Coordinate4 { point [ 0 0 0 1, 4 0 0 2, 0 4 0 2 ] } FaceSet { }");
    EXPECT_NEAR(area(), 2, 1e-6);
}

TEST_F(FaceSets, TexturesWithoutCoordinatesSpanTheLongestSides)
{
    const std::string shape = "Coordinate3 { point [ 0 0 0, 0 4 0, 2 4 0, 2 0 0 ] } FaceSet { }";
    build(shape);
    EXPECT_TRUE(geometry().textureCoordinates.empty());
    build("Texture2 { image 1 1 1 255 } " + shape);
    ASSERT_EQ(geometry().textureCoordinates.size(), 4u);
    EXPECT_EQ(geometry().textureCoordinates[2], SbVec3f(1, 0.5f, 0));
}

TEST_F(FaceSets, HostileIndicesAreLeftOut)
{
    const std::string points = "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] } ";
    for (const char* shape :
         {"IndexedFaceSet { coordIndex [ 0, 1, 99, 2, -1, -1, -1, 5, 6, 7, -1, 0, -1, 2147483647, -2147483648 ] }",
          "IndexedTriangleSet { coordIndex [ 0, 1, 2, 99, 1, 2, -5, 0, 1, 2147483647 ] }",
          "IndexedTriangleStripSet { coordIndex [ 0, 1, 2, 99, -1, -1, -7, 2147483647, 0, 1 ] }"}) {
        build(points + shape);
        EXPECT_EQ(geometry().getNumTriangles(), 1u) << shape;
    }
    for (const char* shape :
         {"IndexedFaceSet { coordIndex [ ] }", "IndexedFaceSet { coordIndex [ 0, 1 ] }",
          "FaceSet { startIndex -5 numVertices [ 2, 2147483647, -1, 0 ] }", "FaceSet { startIndex 2147483647 }",
          "QuadMesh { verticesPerRow 2147483647 verticesPerColumn 2147483647 }", "QuadMesh { verticesPerRow -1 }",
          "QuadMesh { verticesPerRow 1 verticesPerColumn 3 }", "TriangleStripSet { numVertices [ 2, 5 ] }",
          "IndexedLineSet { coordIndex [ 7, -1, 0, 9, -1 ] }", "LineSet { numVertices [ 1, 1, 1, 1 ] }",
          "PointSet { startIndex 3 }", "IndexedPointSet { coordIndex [ -1, 99 ] }"}) {
        build(points + shape);
        EXPECT_TRUE(geometry().isEmpty()) << shape;
    }
    build("Coordinate3 { point [ ] } IndexedFaceSet { coordIndex [ 0, 1, 2 ] }");
    EXPECT_TRUE(geometry().isEmpty());
    build("ShapeHints { faceType UNKNOWN_FACE_TYPE } Coordinate3 { point [ nan 0 0, inf 0 0, 0 1 0, 1 1 1 ] }"
          "IndexedFaceSet { coordIndex [ 0, 1, 2, 3 ] }");
    EXPECT_TRUE(geometry().isEmpty());
}

TEST_F(FaceSets, OnePointSharedByAMeshTakesNoQuadraticTime)
{
    // A fan of many faces about one point, each with a material of its own.
    constexpr int Num = 40000;
    std::string points = "MaterialBinding { value PER_FACE } ShapeHints { creaseAngle 3 } Coordinate3 { point [ 0 0 0";
    std::string faces = "IndexedFaceSet { coordIndex [ ";
    for (int i = 1; i <= Num; ++i) {
        points += ", " + std::to_string(i) + " 1 0";
        if (i > 1)
            faces += "0, " + std::to_string(i) + ", " + std::to_string(i - 1) + ", -1, ";
    }
    const auto start = std::chrono::steady_clock::now();
    build(points + " ] } " + faces + " ] }");
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(geometry().getNumTriangles(), std::size_t(Num - 1));
    // Quadratic work would be over a thousand million steps.
    EXPECT_LT(taken.count(), 3.0);
}
