#include "ShapeFixture.h"

namespace {

struct BindingCase {
    const char* binding;
    const char* shape;
    /** Material of each corner of each triangle, line or point. */
    std::vector<std::uint32_t> expected;
};

const char* const Points = "Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 0 2 0 ] } ";
// Two faces, four corners and three.
const char* const Faces =
    "IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 3, 2, 4, -1 ] materialIndex [ 7, 6, 5, 4, -1, 3, 2, 1, -1 ] }";
const char* const BareFaces = "IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 3, 2, 4, -1 ] }";
const char* const Lines =
    "IndexedLineSet { coordIndex [ 0, 1, 2, -1, 3, 4, -1 ] materialIndex [ 9, 8, 7, -1, 6, 5, -1 ] }";

class Bindings : public ShapeTest, public testing::WithParamInterface<BindingCase> {};

} // namespace

TEST_P(Bindings, GiveEachCornerItsMaterial)
{
    const BindingCase& row = GetParam();
    build(std::string("MaterialBinding { value ") + row.binding + " } " + Points + row.shape);
    std::vector<std::uint32_t> found;
    for (const auto* indices : {&geometry().triangles, &geometry().lines, &geometry().pointVertices}) {
        for (const std::uint32_t vertex : *indices)
            found.push_back(geometry().materialIndices.empty() ? 0 : geometry().materialIndices[vertex]);
    }
    EXPECT_EQ(found, row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Bindings,
    testing::Values(BindingCase{"OVERALL", Faces, {0, 0, 0, 0, 0, 0, 0, 0, 0}},
                    BindingCase{"PER_PART", Faces, {0, 0, 0, 0, 0, 0, 1, 1, 1}},
                    BindingCase{"PER_FACE", Faces, {0, 0, 0, 0, 0, 0, 1, 1, 1}},
                    BindingCase{"PER_FACE_INDEXED", Faces, {7, 7, 7, 7, 7, 7, 6, 6, 6}},
                    BindingCase{"PER_FACE_INDEXED", BareFaces, {0, 0, 0, 0, 0, 0, 1, 1, 1}},
                    BindingCase{"PER_VERTEX", Faces, {0, 1, 2, 0, 2, 3, 4, 5, 6}},
                    BindingCase{"PER_VERTEX_INDEXED", Faces, {7, 6, 5, 7, 5, 4, 3, 2, 1}},
                    BindingCase{"PER_VERTEX_INDEXED", BareFaces, {0, 1, 2, 0, 2, 3, 3, 2, 4}},
                    BindingCase{"PER_PART", Lines, {0, 0, 1, 1, 2, 2}},
                    BindingCase{"PER_PART_INDEXED", Lines, {9, 9, 8, 8, 7, 7}},
                    BindingCase{"PER_FACE", Lines, {0, 0, 0, 0, 1, 1}},
                    BindingCase{"PER_FACE_INDEXED", Lines, {9, 9, 9, 9, 8, 8}},
                    BindingCase{"PER_VERTEX", Lines, {0, 1, 1, 2, 3, 4}},
                    BindingCase{"PER_VERTEX_INDEXED", Lines, {9, 8, 8, 7, 6, 5}},
                    BindingCase{"PER_PART", "TriangleStripSet { numVertices [ 4 ] }", {0, 0, 0, 0, 0, 0}},
                    BindingCase{"PER_FACE", "TriangleStripSet { numVertices [ 4 ] }", {0, 0, 0, 1, 1, 1}},
                    BindingCase{"PER_VERTEX", "FaceSet { startIndex 1 numVertices 3 }", {0, 1, 2}},
                    BindingCase{"PER_VERTEX_INDEXED", "FaceSet { startIndex 1 numVertices 3 }", {1, 2, 3}},
                    BindingCase{"PER_VERTEX", "PointSet { startIndex 3 }", {0, 1}},
                    BindingCase{"PER_VERTEX_INDEXED", "IndexedPointSet { coordIndex [ 4, 2 ] }", {4, 2}}));

TEST_F(ShapeTest, NormalsFollowTheirBinding)
{
    const std::string normals = "Normal { vector [ 0 0 2, 0 1 0, 1 0 0 ] } ";
    build(normals + "NormalBinding { value PER_FACE } " + Points + BareFaces);
    EXPECT_EQ(geometry().normals[geometry().triangles[0]], SbVec3f(0, 0, 1));
    EXPECT_EQ(geometry().normals[geometry().triangles[6]], SbVec3f(0, 1, 0));
    build(normals + Points + "IndexedFaceSet { coordIndex [ 0, 1, 2 ] normalIndex [ 2, 2, 1 ] }");
    EXPECT_EQ(geometry().normals[0], SbVec3f(1, 0, 0));
    EXPECT_EQ(geometry().normals[2], SbVec3f(0, 1, 0));
    // Too few normals: the last one goes on.
    build(normals + Points + "IndexedFaceSet { coordIndex [ 2, 3, 4 ] }");
    EXPECT_EQ(geometry().normals[2], SbVec3f(1, 0, 0));
}

TEST_F(ShapeTest, EqualCornersShareAVertex)
{
    build(std::string("ShapeHints { creaseAngle 0.5 } ") + Points + BareFaces);
    EXPECT_EQ(geometry().points.size(), 5u);
    EXPECT_EQ(geometry().coordinateIndices, (std::vector<std::int32_t>{0, 1, 2, 3, 4}));
    build(std::string("MaterialBinding { value PER_FACE } ") + Points + BareFaces);
    EXPECT_EQ(geometry().points.size(), 7u);
}
