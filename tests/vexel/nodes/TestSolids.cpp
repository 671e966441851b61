#include "ShapeFixture.h"

namespace {

constexpr double Pi = 3.14159265358979;

class Solids : public ShapeTest {};

} // namespace

TEST_F(Solids, CubeHasTwelveTrianglesThatFaceOutwards)
{
    build("Cube { width 2 height 4 depth 6 }");
    EXPECT_EQ(geometry().getNumTriangles(), 12u);
    EXPECT_EQ(geometry().points.size(), 24u);
    EXPECT_EQ(geometry().outline.size(), 48u);
    EXPECT_EQ(geometry().triangleFaces.back(), 5);
    expectNormalsOnTheFrontSide();
    EXPECT_NEAR(area(), 2 * (8 + 12 + 24), 1e-4);
    EXPECT_NEAR(volume(), 48, 1e-4);
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(-1, -2, -3), SbVec3f(1, 2, 3)));
    EXPECT_EQ(geometry().getBoundingBox(), action.box);
}

TEST_F(Solids, CubeGivesEachSideAMaterial)
{
    build("MaterialBinding { value PER_PART } Cube { }");
    for (std::size_t i = 0; i < 24; ++i)
        EXPECT_EQ(geometry().materialIndices[i], i / 4);
    EXPECT_EQ(geometry().normals[0], SbVec3f(0, 0, 1));
    EXPECT_EQ(geometry().normals[8], SbVec3f(-1, 0, 0));
    EXPECT_EQ(geometry().normals[16], SbVec3f(0, 1, 0));
}

TEST_F(Solids, SphereIsClosedAndGetsRounderWithComplexity)
{
    double before = 0;
    for (const char* complexity : {"0", "0.25", "0.5", "1"}) {
        build(std::string("Complexity { value ") + complexity + " } Sphere { radius 2 }");
        expectNormalsOnTheFrontSide();
        EXPECT_GT(volume(), before);
        EXPECT_LT(volume(), 4.0 / 3 * Pi * 8);
        before = volume();
        EXPECT_NEAR(geometry().getBoundingBox().getMax()[1], 2, 1e-6);
        EXPECT_NEAR(geometry().getBoundingBox().getMax()[0], 2, 1e-5);
    }
    EXPECT_GT(before, 4.0 / 3 * Pi * 8 * 0.98);
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(-2, -2, -2), SbVec3f(2, 2, 2)));
}

TEST_F(Solids, CylinderHasThePartsThatItsMaskNames)
{
    build("Cylinder { radius 1 height 3 }");
    expectNormalsOnTheFrontSide();
    const int faces = 24;
    EXPECT_EQ(geometry().getNumTriangles(), 4u * faces);
    EXPECT_NEAR(volume(), 3 * faces / 2.0 * std::sin(2 * Pi / faces), 1e-4);
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(-1, -1.5, -1), SbVec3f(1, 1.5, 1)));
    build("Cylinder { parts ( TOP ) radius 1 height 3 }");
    EXPECT_EQ(geometry().getNumTriangles(), std::size_t(faces));
    EXPECT_EQ(geometry().normals[0], SbVec3f(0, 1, 0));
    EXPECT_EQ(action.box.getMin()[1], 1.5f);
    build("Cylinder { parts NONE }");
    EXPECT_TRUE(geometry().isEmpty());
    EXPECT_TRUE(action.box.isEmpty());
}

TEST_F(Solids, ConeIsClosed)
{
    build("Cone { bottomRadius 1 height 3 }");
    expectNormalsOnTheFrontSide();
    const int faces = 24;
    EXPECT_EQ(geometry().getNumTriangles(), 2u * faces);
    EXPECT_NEAR(volume(), 3 / 3.0 * faces / 2.0 * std::sin(2 * Pi / faces), 1e-4);
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(-1, -1.5, -1), SbVec3f(1, 1.5, 1)));
}

TEST_F(Solids, BufferedShapeReadsItsBuffers)
{
    build("BufferedShape { vertexBuffer BufferObject { values 3 4 FLOAT 0 0 0 1 0 0 1 1 0 0 1 0 }"
          " indexBuffer BufferObject { values 1 7 UNSIGNED_INTEGER 0 1 2 0 2 3 99 }"
          " colorBuffer BufferObject { values 4 4 UNSIGNED_BYTE 255 0 0 255 0 0 0 0 0 0 0 0 0 0 0 0 } }");
    EXPECT_EQ(geometry().getNumTriangles(), 2u);
    EXPECT_NEAR(area(), 1, 1e-6);
    expectNormalsOnTheFrontSide();
    EXPECT_EQ(geometry().materialIndices, (std::vector<std::uint32_t>{0, 1, 2, 3}));
    EXPECT_EQ(action.box, SbBox3f(SbVec3f(0, 0, 0), SbVec3f(1, 1, 0)));
    build("BufferedShape { shapeType LINE_LOOP vertexBuffer BufferObject { values 2 3 DOUBLE 0 0 1 0 1 1 } }");
    EXPECT_EQ(geometry().getNumLines(), 3u);
    build("BufferedShape { indexOffset 4000000000 numIndices 5 }");
    EXPECT_TRUE(geometry().isEmpty());
}
