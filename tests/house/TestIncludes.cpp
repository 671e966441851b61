#include "IncludeRules.h"
#include "RepositoryFiles.h"

#include <gtest/gtest.h>

TEST(Includes, AreReadFromTheLinesOfAFile)
{
    const auto includes =
        includesOf("#pragma once\n  # include <a/B.h> // why\nint x;\n#include \"C.h\"\n// include <no>\n");
    ASSERT_EQ(includes.size(), 2u);
    EXPECT_EQ(includes[0].target, "a/B.h");
    EXPECT_EQ(includes[1].target, "C.h");
    EXPECT_EQ(includes[1].offset, 47u);
}

struct Case {
    const char* path;
    const char* target;
    bool allowed;
};

class IncludeDirection : public testing::TestWithParam<Case> {};

TEST_P(IncludeDirection, IsJudged)
{
    const auto& [path, target, allowed] = GetParam();
    EXPECT_EQ(!includeProblem(path, target), allowed) << path << " -> " << target;
}

INSTANTIATE_TEST_SUITE_P(
    Table, IncludeDirection,
    testing::Values(
        Case{"vexel/nodes/A.cpp", "vexel/base/B.h", true}, //
        Case{"vexel/nodes/A.cpp", "vexel/viewer/B.h", false}, Case{"vexel/nodes/A.cpp", "extension/B.h", false},
        Case{"vexel/nodes/A.cpp", "QWidget", false}, Case{"vexel/nodes/A.cpp", "qwidget.h", false},
        Case{"vexel/nodes/A.cpp", "QtWidgets/QWidget", false}, Case{"vexel/nodes/A.cpp", "QImage", true},
        Case{"vexel/nodes/A.cpp", "vexel/io/detail/B.h", true}, Case{"vexel/nodes/A.cpp", "../base/B.h", false},
        Case{"vexel/viewer/A.cpp", "QWidget", true}, Case{"vexel/viewer/A.cpp", "vexel/io/detail/B.h", false},
        Case{"plugins/x/A.cpp", "extension/B.h", true}, Case{"plugins/x/A.cpp", "nodescope/tree/B.h", false},
        Case{"plugins/x/A.cpp", "vexel/viewer/B.h", false}, Case{"extension/A.cpp", "nodescope/tree/B.h", false},
        Case{"nodescope/tree/A.cpp", "extension/B.h", true}, Case{"nodescope/tree/A.cpp", "plugins/x/B.h", false},
        Case{"plotkit/A.cpp", "nodescope/tree/B.h", false}, Case{"examples/A.cpp", "nodescope/entry/B.h", true},
        Case{"examples/A.cpp", "nodescope/tree/B.h", false}, Case{"tests/x/A.cpp", "nodescope/tree/detail/B.h", true}));

TEST(Includes, PointInOneDirectionOnly)
{
    std::size_t checked = 0;
    for (const RepositoryFile& file : repositoryFiles()) {
        if (!isCppFile(file))
            continue;
        for (const Include& include : includesOf(file.text)) {
            ++checked;
            if (const auto problem = includeProblem(file.path, include.target))
                ADD_FAILURE() << file.at(include.offset) << ": " << *problem;
        }
    }
    EXPECT_GT(checked, 10u) << "no include lines found below " SOURCE_FOLDER;
}
