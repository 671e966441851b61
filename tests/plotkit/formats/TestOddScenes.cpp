#include "CgmWalk.h"
#include "EmfWalk.h"
#include "OtherPrograms.h"

#include <tests/support/ProgramRun.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

// Scenes that have nothing, too much or nonsense in them become files that other programs read.

namespace {

QByteArray manyLines()
{
    QByteArray text = "OrthographicCamera { position 50 50 10 height 100 nearDistance 1 farDistance 20 }\n"
                      "LightModel { model BASE_COLOR }\nCoordinate3 { point [";
    constexpr int Num_lines = 10000;
    for (int i = 0; i < 2 * Num_lines; ++i)
        text += QByteArray::number(i * 37 % 101) + " " + QByteArray::number(i * 53 % 103) + " 0,";
    text += "] }\nLineSet { numVertices [";
    for (int i = 0; i < Num_lines; ++i)
        text += "2,";
    return text + "] }";
}

/** One line of so many points that no format takes it in one piece. */
QByteArray longLine()
{
    QByteArray text = "Coordinate3 { point [";
    constexpr int Num_points = 40000;
    for (int i = 0; i < Num_points; ++i)
        text += QByteArray::number(i * 0.01) + " " + QByteArray::number(i % 200) + " 0,";
    return text + "] }\nLineSet { numVertices " + QByteArray::number(Num_points) + " }";
}

const char* const Face = "IndexedFaceSet { coordIndex [0, 1, 2, -1] }";

struct OddScene {
    const char* name;
    QByteArray content;
};

std::vector<OddScene> scenes()
{
    const auto face = [](const char* points) {
        return QByteArray("Sphere { }\nCoordinate3 { point [") + points + "] }\n" + Face;
    };
    return {
        {"Empty", ""},
        {"WithoutCamera", "Cube { }"},
        {"OnlyACamera", "PerspectiveCamera { }"},
        {"FlatCamera", "PerspectiveCamera { nearDistance 1 farDistance 1 heightAngle 0 }\nCube { }"},
        {"NoNumbers", face("nan 0 0, 1 nan 0, 0 1 0")},
        {"Endless", face("inf 0 0, 1 -inf 0, 0 1 0")},
        {"Huge", face("3e38 0 0, -3e38 1 0, 0 3e38 0")},
        {"Degenerate", face("0 0 0, 1 1 1, 2 2 2")},
        {"OnePoint", face("1 1 1, 1 1 1, 1 1 1")},
        {"ManyLines", manyLines()},
        {"LongLine", longLine()},
    };
}

class Odd : public testing::TestWithParam<OddScene> {
protected:
    void SetUp() override
    {
        QFile scene(path("scene.vx"));
        ASSERT_TRUE(scene.open(QIODevice::WriteOnly));
        scene.write("#Vexel V2.1 ascii\nSeparator {\n" + GetParam().content + "\n}\n");
    }

    QString path(const char* name) const { return m_folder.filePath(name); }

    QByteArray exported(const char* name)
    {
        const ProgramRun run = runProgram("vexel", {"export", path("scene.vx"), path(name)});
        EXPECT_EQ(0, run.status) << run.err;
        return contentOf(path(name));
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(Odd, isPdf)
{
    ASSERT_FALSE(exported("scene.pdf").isEmpty());
    const OtherPicture picture = OtherPrograms::pdftoppm(path("scene.pdf"), m_folder.path());
    EXPECT_FALSE(picture.image.isNull());
    EXPECT_EQ("", picture.output);
}

TEST_P(Odd, isPostScript)
{
    ASSERT_FALSE(exported("scene.ps").isEmpty());
    const OtherPicture picture = OtherPrograms::ghostscript(path("scene.ps"), m_folder.path());
    EXPECT_FALSE(picture.image.isNull());
    EXPECT_EQ("", picture.output);
}

TEST_P(Odd, isCgm)
{
    const std::vector<CgmPart> parts = walkCgm(exported("scene.cgm"));
    ASSERT_GT(parts.size(), 10u);
    EXPECT_TRUE(parts.back().is(0, 2));
}

TEST_P(Odd, isEmf)
{
    const std::vector<EmfPart> parts = walkEmf(exported("scene.emf"));
    ASSERT_GT(parts.size(), 10u);
    EXPECT_EQ(quint32(parts.size()), parts.front().number(52));
}

TEST_P(Odd, isHpgl)
{
    const QByteArray plot = exported("scene.hpgl");
    EXPECT_TRUE(plot.startsWith("IN;"));
    EXPECT_TRUE(plot.endsWith("PU;SP0;PG;\n"));
    for (const char* const nonsense : {"nan", "inf", "e+"})
        EXPECT_FALSE(plot.contains(nonsense));
}

INSTANTIATE_TEST_SUITE_P(Scenes, Odd, testing::ValuesIn(scenes()),
                         [](const auto& info) { return std::string(info.param.name); });
