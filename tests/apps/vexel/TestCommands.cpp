#include <gtest/gtest.h>
#include <tests/support/ProgramRows.h>

// One row for each way to call the program.

namespace {

const std::vector<ProgramFile> Files{
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

const std::vector<ProgramRow>& rows()
{
    static const std::vector<ProgramRow> Table{
        {"Help", {"vexel", "--help"}, 0, "vexel convert IN OUT", ""},
        {"HelpForACommand", {"vexel", "convert", "--help"}, 0, "Exit status: 0", ""},
        {"HelpNamesTheFormatsOfPictures", {"vexel", "--help"}, 0, ".cgm, .emf, .hpgl", ""},
        {"Version", {"vexel", "--version"}, 0, "vexel " PROGRAM_VERSION "\n", ""},
        {"NoCommand", {"vexel"}, 2, "", "vexel: a command is missing; see vexel --help\n"},
        {"UnknownCommand", {"vexel", "explode"}, 2, "", "vexel: there is no command \"explode\"; see vexel --help\n"},

        {"InfoOfAScene", {"vexel", "info", "@/good.vx"}, 0, "triangles  12\n", ""},
        {"InfoCountsSharedNodesOnce",
         {"vexel", "info", "@/good.vx"},
         0,
         "nodes      4\nshared     1\ndepth      3\n",
         ""},
        {"InfoOfAnEmptyBox", {"vexel", "info", "@/use.vx", "@/use.vx"}, 2, "", "info needs one file"},
        {"InfoOfADamagedScene",
         {"vexel", "info", "@/field.vx"},
         1,
         "box        -2.5 -1 -1  to  2.5 1 1\n",
         "@/field.vx:3:10: "},
        {"InfoOfNothing", {"vexel", "info", "@/missing.vx"}, 2, "", "missing.vx"},

        {"CheckWithoutAFile", {"vexel", "check"}, 2, "", "check needs at least one file"},
        {"CheckOfAScene", {"vexel", "check", "@/good.vx"}, 0, "@/good.vx: good\n", ""},
        {"CheckOfAField",
         {"vexel", "check", "@/field.vx"},
         1,
         "@/field.vx: 1 errors\n",
         "@/field.vx:3:10: \"size\" is no field of Cube"},
        {"CheckOfAValue",
         {"vexel", "check", "@/value.vx"},
         1,
         "1 errors",
         "@/value.vx:3:31: expected a number, found \"tall\"\n"},
        {"CheckOfAUse", {"vexel", "check", "@/use.vx"}, 1, "1 errors", "@/use.vx:2:17: USE of \"nobody\""},
        {"CheckOfAnOpenNode", {"vexel", "check", "@/open.vx"}, 1, "errors", "@/open.vx:"},
        {"CheckOfText", {"vexel", "check", "@/text.vx"}, 2, "cannot be read\n", "this is no scene"},
        {"CheckOfAnEmptyFile", {"vexel", "check", "@/empty.vx"}, 2, "cannot be read\n", "@/empty.vx"},
        {"CheckOfDamagedBytes", {"vexel", "check", "@/damaged.vx"}, 2, "cannot be read\n", "@/damaged.vx"},
        {"CheckOfAFolder", {"vexel", "check", "@"}, 2, "cannot be read\n", "@"},
        {"CheckGoesOnToTheNextFile", {"vexel", "check", "@/text.vx", "@/good.vx"}, 2, "@/good.vx: good\n", "text.vx"},

        {"ConvertToAscii", {"vexel", "convert", "@/good.vx", "@/o.vx"}, 0, "", "", "@/o.vx", "#Vexel V2.1 ascii\n"},
        {"ConvertToBinary",
         {"vexel", "convert", "@/good.vx", "@/o.vx", "--binary"},
         0,
         "",
         "",
         "@/o.vx",
         "#Vexel V2.1 binary"},
        {"ConvertCompresses", {"vexel", "convert", "@/good.vx", "@/o.vxz"}, 0, "", "", "@/o.vxz", "\x1f\x8b"},
        {"ConvertCompressesByLongName",
         {"vexel", "convert", "@/good.vx", "@/o.vx.gz"},
         0,
         "",
         "",
         "@/o.vx.gz",
         "\x1f\x8b"},
        {"ConvertKeepsWhatIsGood",
         {"vexel", "convert", "@/field.vx", "@/o.vx"},
         1,
         "",
         ":3:10:",
         "@/o.vx",
         "#Vexel V2.1 ascii\n"},
        {"ConvertOfText", {"vexel", "convert", "@/text.vx", "@/o.vx"}, 2, "", "text.vx", "@/o.vx"},
        {"ConvertBothWays",
         {"vexel", "convert", "--ascii", "--binary", "@/good.vx", "@/o.vx"},
         2,
         "",
         "at most one of",
         "@/o.vx"},
        {"ConvertUnknownOption", {"vexel", "convert", "--fast", "@/good.vx", "@/o.vx"}, 2, "", "\"--fast\"", "@/o.vx"},
        {"ConvertWithoutATarget", {"vexel", "convert", "@/good.vx"}, 2, "", "a file to write"},
        {"ConvertIntoNoFolder",
         {"vexel", "convert", "@/good.vx", "@/no/o.vx"},
         2,
         "",
         "vexel: cannot write @/no/o.vx: ",
         "@/no"},
        {"ConvertBelowAFile", {"vexel", "convert", "@/good.vx", "@/taken/o.vx"}, 2, "", "cannot write @/taken/o.vx: "},

        {"RenderAPicture",
         {"vexel", "render", "@/good.vx", "@/o.png", "--size", "40x30"},
         0,
         "",
         "",
         "@/o.png",
         "\x89PNG"},
        {"RenderNoSize", {"vexel", "render", "@/good.vx", "@/o.png", "--size", "40"}, 2, "", "--size needs", "@/o.png"},
        {"RenderText", {"vexel", "render", "@/text.vx", "@/o.png"}, 2, "", "text.vx", "@/o.png"},
        {"RenderIntoNoFolder", {"vexel", "render", "@/good.vx", "@/no/o.png"}, 2, "", "@/no/o.png", "@/no"},
    };
    return Table;
}

using Command = testing::TestWithParam<ProgramRow>;

} // namespace

TEST_P(Command, BehavesAsItsRowSays)
{
    ProgramRows(Files).expect(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Table, Command, testing::ValuesIn(rows()),
                         [](const auto& info) { return std::string(info.param.name); });
