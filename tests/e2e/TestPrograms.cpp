#include <gtest/gtest.h>
#include <tests/support/ProgramRows.h>

// One row for each way to call a program.

namespace {

const std::vector<ProgramFile> Files{
    {"good.vx", "#Vexel V2.1 ascii\nSeparator { Material { } Translation { } }\n"},
    {"damaged.vx", "#Vexel V2.1 ascii\nSeparator {\n Translation { translation tall }\n Material { } }\n"},
    {"text.vx", "this is no scene\n"},
    {"empty.vx", ""},
    {"other.vx", "#Vexel V2.1 ascii\nSeparator { Cube { } }\n"},
};

const std::vector<ProgramRow>& rows()
{
    static const std::vector<ProgramRow> Table{
        {"PictureOfAScene", {"nodescope", "--screenshot", "@/a.png", "@/good.vx"}, 0, "", "", "@/a.png", "\x89PNG"},
        {"PictureWithoutAScene", {"nodescope", "--screenshot", "@/a.png"}, 0, "", "", "@/a.png", "\x89PNG"},
        {"DamagedScene",
         {"nodescope", "--screenshot", "@/a.png", "@/damaged.vx"},
         0,
         "",
         "damaged.vx:3:",
         "@/a.png",
         "\x89PNG"},
        {"TextFile", {"nodescope", "--screenshot", "@/a.png", "@/text.vx"}, 2, "", "text.vx", "@/a.png"},
        {"EmptyFile", {"nodescope", "--screenshot", "@/a.png", "@/empty.vx"}, 2, "", "empty.vx", "@/a.png"},
        {"MissingFile",
         {"nodescope", "@/no.vx"},
         2,
         "",
         "nodescope: cannot read the scene file '@/no.vx'; check its name and its permissions\n"},
        {"Folder", {"nodescope", "@"}, 2, "", "cannot read the scene file '@'"},
        {"PictureInNoFolder",
         {"nodescope", "--screenshot", "@/no/a.png", "@/good.vx"},
         1,
         "",
         "nodescope: cannot write the picture '@/no/a.png'; check folder and file extension\n",
         "@/no/a.png"},
        {"PictureOfNoFormat",
         {"nodescope", "--screenshot", "@/a.what", "@/good.vx"},
         1,
         "",
         "cannot write the picture '@/a.what'",
         "@/a.what"},
        {"HostWithoutAnApplication",
         {"e2e_bare_host"},
         0,
         "^before: not running, no application\n"
         "started: running, an application\nserved: running, an application\nstopped: not running, no application\n"
         "started: running, an application\nserved: running, an application\nstopped: not running, no application\n"
         "references: 1\n",
         ""},
        {"HostWithTheToolkitOnly",
         {"e2e_toolkit_host"},
         0,
         "^available at first: no\navailable then: yes\nbefore: not running\nstarted: running\nserved: running\n"
         "stopped: not running\nstarted: running\nserved: running\nstopped: not running\nreferences: 1\n",
         ""},
        {"HostThatEndsWhileItIsInspected",
         {"e2e_ending_host"},
         0,
         "^served: 1\nwithout a scene manager: 0\nreferences: 1\nserved: 1\n",
         ""},
        {"TheLastOfTwoFilesIsOpened", {"e2e_standalone_host", "@/good.vx", "@/other.vx"}, 0, "^open: @/other.vx\n", ""},
    };
    return Table;
}

using Program = testing::TestWithParam<ProgramRow>;

} // namespace

TEST_P(Program, BehavesAsItsRowSays)
{
    ProgramRows(Files).expect(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Table, Program, testing::ValuesIn(rows()),
                         [](const auto& info) { return std::string(info.param.name); });
