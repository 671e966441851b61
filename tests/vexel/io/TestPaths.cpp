#include "SceneText.h"

#include <fstream>
#include <memory>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <vexel/base/SoPath.h>

namespace {

const std::string Header = "#Vexel V2.1 ascii\n";

struct Unref {
    void operator()(SoPath* path) const { path->unref(); }
};
using PathHolder = std::unique_ptr<SoPath, Unref>;

PathHolder held(SoPath* path)
{
    if (path)
        path->ref();
    return PathHolder(path);
}

PathHolder pathTo(const Scene& scene, const std::vector<int>& indices)
{
    PathHolder path = held(new SoPath(scene.root));
    for (const int index : indices)
        EXPECT_TRUE(path->append(index)) << index;
    return path;
}

std::string writtenPath(SoPath& path, bool binary = false)
{
    SoOutput out;
    out.setBinary(binary);
    SoWriteAction(&out).apply(&path);
    return out.getText();
}

PathHolder readPath(const std::string& text)
{
    SoInput in;
    in.setBuffer(text.data(), text.size());
    SoPath* path = nullptr;
    EXPECT_TRUE(SoDB::read(&in, path));
    return held(path);
}

/** The words of a text, one blank apart. */
std::string words(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        const char next = c == '\n' ? ' ' : c;
        if (next != ' ' || (!result.empty() && result.back() != ' '))
            result += next;
    }
    return result;
}

/** What both forms are read back to is as long as the path, up to its first kit, and ends at the same. */
void expectToComeBack(SoPath& path)
{
    for (const bool binary : {false, true}) {
        const ReadErrors errors;
        const PathHolder again = readPath(writtenPath(path, binary));
        EXPECT_EQ(errors.texts, std::vector<std::string>()) << binary;
        ASSERT_TRUE(again) << binary;
        ASSERT_EQ(again->getLength(), path.getLength()) << binary;
        EXPECT_EQ(written(again->getTail()), written(path.getTail())) << binary;
        EXPECT_EQ(writtenPath(*again), writtenPath(path)) << binary;
    }
}

struct PathCase {
    const char* name;
    const char* scene;
    std::vector<int> indices;
    const char* written;
};

class WrittenPath : public testing::TestWithParam<PathCase> {};

TEST_P(WrittenPath, HoldsWhatBelongsToIt)
{
    const PathCase& row = GetParam();
    const Scene scene(Header + row.scene);
    const PathHolder path = pathTo(scene, row.indices);
    EXPECT_EQ(words(writtenPath(*path)), "#Vexel V2.1 ascii Path { " + std::string(row.written) + " } ");
    expectToComeBack(*path);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WrittenPath,
    testing::Values(
        PathCase{"TheHeadAlone",
                 "Separator { Cube { } Separator { Cone { } } }",
                 {},
                 "Separator { Cube { } Separator { Cone { } } } 0"},
        PathCase{"WhatChangesTheStateInFront",
                 "Separator { PerspectiveCamera { } Cube { } Separator { Cone { } } DirectionalLight { } Group { } "
                 "Group { Cube { } Material { } } Separator { Info { } Translation { } DEF tail Separator { Cube { } "
                 "Separator { Cone { } } } Scale { } } Rotation { } Cone { } }",
                 {6, 2},
                 "Separator { PerspectiveCamera { } DirectionalLight { } Group { Cube { } Material { } } Separator { "
                 "Translation { } DEF tail Separator { Cube { } Separator { Cone { } } } } } 2 3 1"},
        PathCase{"AGroupThatStandsInFrontToo",
                 "Separator { DEF g Group { Cube { } Material { } Sphere { } } Separator { } USE g }",
                 {2, 2},
                 "Separator { DEF g Group { Cube { } Material { } Sphere { } } USE g } 2 1 2"},
        PathCase{"AGroupThatStandsBelowOneInFront",
                 "Separator { Group { Scale { } DEF g Separator { Cube { } Separator { Cube { } Sphere { } } } } "
                 "Separator { Cone { } USE g } }",
                 {1, 1, 1, 1},
                 "Separator { Group { Scale { } DEF g Separator { Cube { } Separator { Cube { } Sphere { } } } } "
                 "Separator { USE g } } 4 1 0 1 1"},
        PathCase{"AGroupThatStandsBesideTheWayOnly",
                 "Separator { DEF g Separator { Cube { } Sphere { } Cone { } } USE g }",
                 {1, 1},
                 "Separator { DEF g Separator { Sphere { } } } 2 0 0"},
        PathCase{"ASwitchThatChoosesByPlace",
                 "Separator { Cube { } Switch { whichChild 2 Cube { } Separator { Cone { } } Separator { Cube { } "
                 "Sphere { } } } }",
                 {1, 2, 1},
                 "Separator { Switch { whichChild 2 Cube { } Separator { Cone { } } Separator { Sphere { } } } } 3 0 2 "
                 "0"},
        PathCase{"ASwitchThatShowsAll",
                 "Separator { Switch { whichChild -3 Cube { } Scale { } Sphere { } } }",
                 {0, 2},
                 "Separator { Switch { whichChild -3 Scale { } Sphere { } } } 2 0 1"},
        PathCase{"AGroupThatAConnectionComesFrom",
                 "Separator { Switch { whichChild -3 = DEF s Switch { whichChild -3 Cube { } Sphere { } } . whichChild "
                 "Scale { } } Separator { } USE s }",
                 {2, 1},
                 "Separator { Switch { whichChild -3 = DEF s Switch { whichChild -3 Sphere { } } . whichChild Scale { "
                 "} } USE s } 2 1 0"},
        PathCase{"AGroupThatAPathInAFieldBeginsAt",
                 "Separator { Group { Strange { fields [ SFPath p ] p Path { DEF g Separator { Cube { } Sphere { } } 1 "
                 "1 } } Scale { } } USE g }",
                 {1, 1},
                 "Separator { Group { Strange { fields [ SFPath p ] p Path { DEF g Separator { Cube { } Sphere { } } 1 "
                 "1 } } Scale { } } USE g } 2 1 1"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(WrittenPath, EndsAtTheFirstKit)
{
    const Scene scene(Header + "Separator { Cube { } ShapeKit { appearance AppearanceKit { material Material { "
                               "shininess 0.5 } } } }");
    const PathHolder path = pathTo(scene, {1, 0});
    EXPECT_EQ(path->getFullLength(), 3);
    const PathHolder again = readPath(writtenPath(*path));
    EXPECT_EQ(again->getFullLength(), 2);
    EXPECT_EQ(again->getIndex(1), 0);
    EXPECT_NE(writtenPath(*path).find("shininess 0.5"), std::string::npos);
    expectToComeBack(*path);
}

TEST(WrittenPath, EndsBeforeANodeThatAFieldHolds)
{
    const Scene scene(Header + "Separator { Cube { } Scale { } IndexedFaceSet { vertexProperty VertexProperty { "
                               "vertex [ 1 2 3 ] } } }");
    const PathHolder path = pathTo(scene, {2});
    const std::string untilThere = writtenPath(*path);
    const SoField* field = path->getTail()->getField(SbName("vertexProperty"));
    ASSERT_TRUE(field);
    ASSERT_EQ(field->getReferences().size(), 1u);
    path->append(static_cast<SoNode*>(field->getReferences().front()));
    EXPECT_EQ(path->getLength(), 3);
    EXPECT_EQ(writtenPath(*path), untilThere);
    EXPECT_EQ(readPath(untilThere)->getIndex(1), 1);
}

TEST(WrittenPath, LeadsIntoAFileThatIsIncluded)
{
    const QTemporaryDir folder;
    const std::string file = folder.filePath("inner.vx").toStdString();
    std::ofstream(file) << Header << "Separator { Cube { } Sphere { } }\n";
    const Scene scene(Header + "Separator { Cube { } File { name \"" + file + "\" } }");
    const PathHolder path = pathTo(scene, {1, 0, 1});
    EXPECT_EQ(words(writtenPath(*path)),
              "#Vexel V2.1 ascii Path { Separator { File { name \"" + file + "\" } } 3 0 0 1 } ");
    expectToComeBack(*path);
}

TEST(WrittenPath, SharesNothingWithWhatWasWrittenBefore)
{
    const Scene scene(Header + "DEF a Separator { Cube { } Sphere { } DEF b Separator { Cone { } } }");
    SoOutput out;
    for (const int place : {0, 1, 2})
        SoWriteAction(&out).apply(pathTo(scene, {place}).get());
    SoWriteAction(&out).apply(scene.root);
    const std::string& text = out.getText();
    SoInput in;
    in.setBuffer(text.data(), text.size());
    for (const char* tail : {"Cube", "Sphere", "Separator"}) {
        SoPath* path = nullptr;
        ASSERT_TRUE(SoDB::read(&in, path));
        const PathHolder holder = held(path);
        ASSERT_EQ(holder->getLength(), 2);
        EXPECT_EQ(static_cast<SoGroup*>(holder->getHead())->getNumChildren(), 1);
        EXPECT_EQ(holder->getTail()->getTypeId().getName(), SbName(tail));
    }
    SoNode* whole = nullptr;
    ASSERT_TRUE(SoDB::read(&in, whole));
    ASSERT_TRUE(whole);
    whole->ref();
    EXPECT_EQ(static_cast<SoGroup*>(whole)->getNumChildren(), 3);
    whole->unref();
}

} // namespace
