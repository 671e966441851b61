#include "VexelRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// One row for each way to call the program. In arguments and texts, @ stands for a folder with the files below.

namespace {

struct File {
    const char* name;
    const char* content;
};

struct Row {
    const char* name;
    std::vector<const char*> arguments;
    int status;
    const char* out;             ///< part of the standard output; "" for no output at all
    const char* err;             ///< part of the standard error output; "" for no output at all
    const char* file = "";       ///< file that the call is about
    const char* begin = nullptr; ///< first bytes of that file after the call; none when it must not exist
};

constexpr File Files[] = {
    {"good.vx", "#Vexel V2.1 ascii\nDEF top Separator { Cube { } Separator { DEF m Material { } USE m } }\n"},
    {"field.vx", "#Vexel V2.1 ascii\nSeparator {\n  Cube { size 3 width 5 }\n}\n"},
    {"value.vx", "#Vexel V2.1 ascii\nSeparator {\n  Translation { translation 1 tall 2 }\n  Cube { }\n}\n"},
    {"use.vx", "#Vexel V2.1 ascii\nSeparator { USE nobody Cube { } }\n"},
    {"open.vx", "#Vexel V2.1 ascii\nSeparator {\n  Cube { width 5\n"},
    {"text.vx", "this is no scene\n"},
    {"empty.vx", ""},
    {"damaged.vx", "#Vexel V2.1 binary             \nVXB1"},
    {"taken", ""},
};

const std::vector<Row>& rows()
{
    static const std::vector<Row> Table{
        {"Help", {"--help"}, 0, "vexel convert IN OUT", ""},
        {"HelpForACommand", {"convert", "--help"}, 0, "Exit status: 0", ""},
        {"Version", {"--version"}, 0, "vexel " PROGRAM_VERSION "\n", ""},
        {"NoCommand", {}, 2, "", "vexel: a command is missing; see vexel --help\n"},
        {"UnknownCommand", {"explode"}, 2, "", "vexel: there is no command \"explode\"; see vexel --help\n"},

        {"InfoOfAScene", {"info", "@/good.vx"}, 0, "triangles  12\n", ""},
        {"InfoCountsSharedNodesOnce", {"info", "@/good.vx"}, 0, "nodes      4\nshared     1\ndepth      3\n", ""},
        {"InfoOfAnEmptyBox", {"info", "@/use.vx", "@/use.vx"}, 2, "", "info needs one file"},
        {"InfoOfADamagedScene", {"info", "@/field.vx"}, 1, "box        -2.5 -1 -1  to  2.5 1 1\n", "@/field.vx:3:10: "},
        {"InfoOfNothing", {"info", "@/missing.vx"}, 2, "", "missing.vx"},

        {"CheckWithoutAFile", {"check"}, 2, "", "check needs at least one file"},
        {"CheckOfAScene", {"check", "@/good.vx"}, 0, "@/good.vx: good\n", ""},
        {"CheckOfAField",
         {"check", "@/field.vx"},
         1,
         "@/field.vx: 1 errors\n",
         "@/field.vx:3:10: \"size\" is no field of Cube"},
        {"CheckOfAValue",
         {"check", "@/value.vx"},
         1,
         "1 errors",
         "@/value.vx:3:31: expected a number, found \"tall\"\n"},
        {"CheckOfAUse", {"check", "@/use.vx"}, 1, "1 errors", "@/use.vx:2:17: USE of \"nobody\""},
        {"CheckOfAnOpenNode", {"check", "@/open.vx"}, 1, "errors", "@/open.vx:"},
        {"CheckOfText", {"check", "@/text.vx"}, 2, "cannot be read\n", "this is no scene"},
        {"CheckOfAnEmptyFile", {"check", "@/empty.vx"}, 2, "cannot be read\n", "@/empty.vx"},
        {"CheckOfDamagedBytes", {"check", "@/damaged.vx"}, 2, "cannot be read\n", "@/damaged.vx"},
        {"CheckOfAFolder", {"check", "@"}, 2, "cannot be read\n", "@"},
        {"CheckGoesOnToTheNextFile", {"check", "@/text.vx", "@/good.vx"}, 2, "@/good.vx: good\n", "text.vx"},

        {"ConvertToAscii", {"convert", "@/good.vx", "@/o.vx"}, 0, "", "", "@/o.vx", "#Vexel V2.1 ascii\n"},
        {"ConvertToBinary", {"convert", "@/good.vx", "@/o.vx", "--binary"}, 0, "", "", "@/o.vx", "#Vexel V2.1 binary"},
        {"ConvertCompresses", {"convert", "@/good.vx", "@/o.vxz"}, 0, "", "", "@/o.vxz", "\x1f\x8b"},
        {"ConvertCompressesByLongName", {"convert", "@/good.vx", "@/o.vx.gz"}, 0, "", "", "@/o.vx.gz", "\x1f\x8b"},
        {"ConvertKeepsWhatIsGood",
         {"convert", "@/field.vx", "@/o.vx"},
         1,
         "",
         ":3:10:",
         "@/o.vx",
         "#Vexel V2.1 ascii\n"},
        {"ConvertOfText", {"convert", "@/text.vx", "@/o.vx"}, 2, "", "text.vx", "@/o.vx"},
        {"ConvertBothWays",
         {"convert", "--ascii", "--binary", "@/good.vx", "@/o.vx"},
         2,
         "",
         "at most one of",
         "@/o.vx"},
        {"ConvertUnknownOption", {"convert", "--fast", "@/good.vx", "@/o.vx"}, 2, "", "\"--fast\"", "@/o.vx"},
        {"ConvertWithoutATarget", {"convert", "@/good.vx"}, 2, "", "a file to write"},
        {"ConvertIntoNoFolder",
         {"convert", "@/good.vx", "@/no/o.vx"},
         2,
         "",
         "vexel: cannot write @/no/o.vx: ",
         "@/no"},
        {"ConvertBelowAFile", {"convert", "@/good.vx", "@/taken/o.vx"}, 2, "", "cannot write @/taken/o.vx: "},

        {"RenderAPicture", {"render", "@/good.vx", "@/o.png", "--size", "40x30"}, 0, "", "", "@/o.png", "\x89PNG"},
        {"RenderNoSize", {"render", "@/good.vx", "@/o.png", "--size", "40"}, 2, "", "--size needs", "@/o.png"},
        {"RenderText", {"render", "@/text.vx", "@/o.png"}, 2, "", "text.vx", "@/o.png"},
        {"RenderIntoNoFolder", {"render", "@/good.vx", "@/no/o.png"}, 2, "", "@/no/o.png", "@/no"},
    };
    return Table;
}

class Command : public testing::TestWithParam<Row> {
protected:
    Command()
    {
        for (const File& file : Files) {
            QFile target(m_folder.filePath(file.name));
            EXPECT_TRUE(target.open(QIODevice::WriteOnly));
            target.write(file.content);
        }
    }

    QString placed(const char* text) const { return QString::fromLatin1(text).replace('@', m_folder.path()); }

    void expectText(const std::string& text, const char* part) const
    {
        if (*part)
            EXPECT_NE(text.find(placed(part).toStdString()), std::string::npos) << text;
        else
            EXPECT_EQ(text, "");
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(Command, BehavesAsItsRowSays)
{
    const Row& row = GetParam();
    QStringList arguments;
    for (const char* argument : row.arguments)
        arguments << placed(argument);
    const VexelRun run = runVexel(arguments);
    EXPECT_EQ(run.status, row.status) << run.err;
    expectText(run.out, row.out);
    expectText(run.err, row.err);
    const QString file = placed(row.file);
    if (row.begin) {
        EXPECT_TRUE(contentOf(file).startsWith(row.begin));
    } else if (*row.file) {
        EXPECT_FALSE(QFile::exists(file));
    }
}

INSTANTIATE_TEST_SUITE_P(Table, Command, testing::ValuesIn(rows()),
                         [](const auto& info) { return std::string(info.param.name); });
