#include "ProgramRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// One row for each way to call a program. In arguments and texts, @ stands for a folder with the files of the row.

namespace {

struct File {
    const char* name;
    const char* content;
};

struct Row {
    const char* name;
    const char* program;
    std::vector<const char*> arguments;
    int status;
    const char* out;     ///< all of the standard output
    const char* err;     ///< part of the standard error output
    const char* written; ///< file that the program writes, or must not write when the status tells of a failure
};

constexpr File Files[] = {
    {"good.vx", "#Vexel V2.1 ascii\nSeparator { Material { } Translation { } }\n"},
    {"damaged.vx", "#Vexel V2.1 ascii\nSeparator {\n Translation { translation tall }\n Material { } }\n"},
    {"text.vx", "this is no scene\n"},
    {"empty.vx", ""},
};

const std::vector<Row>& rows()
{
    static const std::vector<Row> Table{
        {"PictureOfAScene", "nodescope", {"--screenshot", "@/a.png", "@/good.vx"}, 0, "", "", "@/a.png"},
        {"PictureWithoutAScene", "nodescope", {"--screenshot", "@/a.png"}, 0, "", "", "@/a.png"},
        {"DamagedScene", "nodescope", {"--screenshot", "@/a.png", "@/damaged.vx"}, 0, "", "damaged.vx:3:", "@/a.png"},
        {"TextFile", "nodescope", {"--screenshot", "@/a.png", "@/text.vx"}, 2, "", "text.vx", "@/a.png"},
        {"EmptyFile", "nodescope", {"--screenshot", "@/a.png", "@/empty.vx"}, 2, "", "empty.vx", "@/a.png"},
        {"MissingFile",
         "nodescope",
         {"@/no.vx"},
         2,
         "",
         "nodescope: cannot read the scene file '@/no.vx'; check its name and its permissions\n",
         ""},
        {"Folder", "nodescope", {"@"}, 2, "", "cannot read the scene file '@'", ""},
        {"PictureInNoFolder",
         "nodescope",
         {"--screenshot", "@/no/a.png", "@/good.vx"},
         1,
         "",
         "nodescope: cannot write the picture '@/no/a.png'; check folder and file extension\n",
         "@/no/a.png"},
        {"PictureOfNoFormat",
         "nodescope",
         {"--screenshot", "@/a.what", "@/good.vx"},
         1,
         "",
         "cannot write the picture '@/a.what'",
         "@/a.what"},
        {"HostWithoutAnApplication",
         "e2e_bare_host",
         {},
         0,
         "before: not running, no application\n"
         "started: running, an application\nserved: running, an application\nstopped: not running, no application\n"
         "started: running, an application\nserved: running, an application\nstopped: not running, no application\n"
         "references: 1\n",
         "",
         ""},
        {"HostWithTheToolkitOnly",
         "e2e_toolkit_host",
         {},
         0,
         "available at first: no\navailable then: yes\nbefore: not running\nstarted: running\nserved: running\n"
         "stopped: not running\nstarted: running\nserved: running\nstopped: not running\nreferences: 1\n",
         "",
         ""},
    };
    return Table;
}

class Program : public testing::TestWithParam<Row> {
protected:
    Program()
    {
        for (const File& file : Files) {
            QFile target(m_folder.filePath(file.name));
            EXPECT_TRUE(target.open(QIODevice::WriteOnly));
            target.write(file.content);
        }
    }

    QString placed(const char* text) const { return QString(text).replace('@', m_folder.path()); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(Program, BehavesAsItsRowSays)
{
    const Row& row = GetParam();
    QStringList arguments;
    for (const char* argument : row.arguments)
        arguments << placed(argument);
    const ProgramRun run = runProgram(row.program, arguments);
    EXPECT_EQ(run.status, row.status) << run.err.toStdString();
    EXPECT_EQ(run.out.toStdString(), row.out);
    EXPECT_TRUE(run.err.contains(placed(row.err))) << run.err.toStdString();
    EXPECT_EQ(QFile::exists(placed(row.written)), *row.written && row.status == 0);
}

INSTANTIATE_TEST_SUITE_P(Table, Program, testing::ValuesIn(rows()),
                         [](const auto& info) { return std::string(info.param.name); });
