#include "Exports.h"

#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoLineSet.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const ReadFile::LineSet& onlyLines(const ReadFile& file)
{
    EXPECT_EQ(1u, file.lineSets.size());
    return file.lineSets.begin()->second;
}

TEST(U3DLines, haveTheirEnds)
{
    const ReadFile file =
        exported("Material { diffuseColor 1 0.5 0 } Coordinate3 { point [ 0 0 0, 1 0 0, 1 -2 0, 0 0 4 ] }"
                 "LineSet { numVertices [ 3, -1 ] }");
    const ReadFile::LineSet& lines = onlyLines(file);
    EXPECT_EQ((std::vector<std::array<std::uint32_t, 3>>{{0, 1, 0}, {1, 2, 0}}), lines.lines);
    EXPECT_EQ((std::vector<SbVec3f>{{0, 0, 0}, {1, 0, 0}, {1, -2, 0}}), lines.positions);
    EXPECT_EQ(0u, file.shaderOf("LineSet").attributes);
    EXPECT_EQ(SbVec3f(1, 0.5f, 0), file.materialOf("LineSet").emissive);
}

TEST(U3DLines, comeOnceBetweenTwoPlaces)
{
    const ReadFile file = exported("Coordinate3 { point [ 0 0 0, 1 0 0, 0 0 0, 1 0 0 ] }"
                                   "IndexedLineSet { coordIndex [ 0, 1, -1, 3, 2, -1, 1, 1, -1, 1, 0 ] }");
    EXPECT_EQ(1u, onlyLines(file).lines.size());
    EXPECT_EQ(2u, onlyLines(file).positions.size());
}

TEST(U3DLines, haveEvenColorsEach)
{
    const ReadFile file =
        exported("Material { diffuseColor [ 1 0 0, 0 1 0, 1 0 0 ] } MaterialBinding { value PER_FACE }"
                 "Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0, 1 1 0, 0 2 0, 1 2 0 ] }"
                 "LineSet { numVertices [ 2, 2, 2 ] }");
    const ReadFile::LineSet& lines = onlyLines(file);
    EXPECT_EQ(2u, lines.numShadings);
    ASSERT_EQ(3u, lines.lines.size());
    const std::array<SbVec3f, 3> expected{SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(1, 0, 0)};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(expected[i], file.materialOf("LineSet", lines.lines[i][2]).diffuse) << i;
}

TEST(U3DLines, areTheEdgesOfFacesThatAreDrawnAsLines)
{
    const ReadFile file = exported("DrawStyle { style LINES } Cube {}");
    EXPECT_TRUE(file.meshes.empty());
    EXPECT_EQ(12u, onlyLines(file).lines.size());
    EXPECT_EQ(8u, onlyLines(file).positions.size());
}

TEST(U3DLines, areLeftOutWhereNothingIsDrawn)
{
    const std::string line = "Coordinate3 { point [ 0 0 0, 1 0 0 ] } LineSet {}";
    EXPECT_EQ(1u, exported(line).lineSets.size());
    EXPECT_TRUE(exported("DrawStyle { linePattern 0 }" + line).lineSets.empty());
    EXPECT_TRUE(exported("DrawStyle { style POINTS }" + line).lineSets.empty());
    EXPECT_TRUE(exported("DrawStyle { style INVISIBLE }" + line).lineSets.empty());
    EXPECT_TRUE(exported("Coordinate3 { point [ 1 0 0, 1 0 0 ] } LineSet {}").lineSets.empty());
}

struct Walk {
    SbVec3f start;
    float size;
};

class U3DLongLine : public testing::TestWithParam<Walk> {};

/** A line of many ends that goes at random through a box. */
TEST_P(U3DLongLine, staysWithinItsPrecision)
{
    const auto& [start, size] = GetParam();
    constexpr double Precision = 1e-6; // in parts of the diagonal
    constexpr int Num_points = 20000;
    std::mt19937 random(3);
    std::uniform_real_distribution<float> place(0, size);
    auto* root = new SoSeparator;
    root->ref();
    auto* coordinates = new SoCoordinate3;
    std::vector<SbVec3f> points;
    for (int i = 0; i < Num_points; ++i)
        points.push_back(start + SbVec3f(place(random), place(random), place(random)));
    coordinates->point.setValues(0, Num_points, points.data());
    root->addChild(coordinates);
    root->addChild(new SoLineSet);
    const ReadFile file = exported(root);
    const ReadFile::LineSet& lines = onlyLines(file);
    ASSERT_EQ(points.size(), lines.positions.size());
    const SbMatrix matrix = file.worldMatrix("LineSet");
    double farthest = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (int k = 0; k < 3; ++k) {
            const double read = double(lines.positions[i][k]) + double(matrix[3][k]);
            farthest = std::max(farthest, std::abs(read - double(points[i][k])));
        }
    }
    EXPECT_LE(farthest, Precision * double(size));
    EXPECT_EQ(points.size() - 1, lines.lines.size());
    root->unref();
}

INSTANTIATE_TEST_SUITE_P(U3D, U3DLongLine,
                         testing::Values(Walk{{0, 0, 0}, 1}, Walk{{-7, 5, 30}, 10}, Walk{{0, 0, 0}, 1e-20f},
                                         Walk{{0, 0, 0}, 1e30f}, Walk{{5e5f, -2e6f, 0}, 100}));

} // namespace
