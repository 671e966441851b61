#include "RepositoryFiles.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

const std::string Drawings = "nodescope/resources/icons/";

std::vector<const RepositoryFile*> drawings()
{
    std::vector<const RepositoryFile*> found;
    for (const RepositoryFile& file : repositoryFiles()) {
        if (endsWith(file.path, ".svg") &&
            (startsWith(file.path, Drawings) || startsWith(file.path, "vexel/viewer/icons/")))
            found.push_back(&file);
    }
    return found;
}

/** Lines of the tree's branches have the grid of a tree cell; the window's icon and the about box stand alone. */
bool hasOwnGrid(const std::string& path)
{
    static const std::set<std::string> Names{"vline",         "branch-more", "branch-end",
                                             "NodescopeIcon", "aboutlogo",   "aboutribbon"};
    const auto slash = path.rfind('/') + 1;
    return Names.count(path.substr(slash, path.rfind('.') - slash)) != 0;
}

} // namespace

TEST(Icons, ShareOneGridAndOneStroke)
{
    const std::string start =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\" width=\"24\" height=\"24\" fill=\"none\" "
        "stroke=\"#74849c\" stroke-width=\"1.65\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
    const auto files = drawings();
    ASSERT_GT(files.size(), 40u);
    for (const RepositoryFile* file : files) {
        if (hasOwnGrid(file->path))
            continue;
        EXPECT_TRUE(startsWith(file->text, start)) << file->path << ": begin it like the other icons, with the line\n"
                                                   << start;
        EXPECT_EQ(file->text.find("stroke-width", start.size()), std::string::npos)
            << file->path << ": has strokes of another width; draw everything with the width of the first line";
    }
}

TEST(Icons, NamedInTheSourcesAreDrawn)
{
    static const std::regex Path(R"re(:/Nodescope_icons/Icons/([A-Za-z][A-Za-z0-9_-]*)(\.png)?)re");
    std::set<std::string> drawn;
    for (const RepositoryFile* file : drawings()) {
        if (startsWith(file->path, Drawings))
            drawn.insert(file->path.substr(Drawings.size(), file->path.rfind('.') - Drawings.size()));
    }
    for (const RepositoryFile& file : repositoryFiles()) {
        if (!isCppFile(file) && !endsWith(file.path, ".ui") && !endsWith(file.path, ".qss"))
            continue;
        for (std::sregex_iterator match(file.text.begin(), file.text.end(), Path), end; match != end; ++match) {
            const std::string name = (*match)[1];
            EXPECT_TRUE(drawn.count(name)) << file.at(std::size_t(match->position())) << ": there is no icon '" << name
                                           << "'; draw " << Drawings << name << ".svg";
            EXPECT_EQ((*match)[2].matched, name != "fileopen")
                << file.at(std::size_t(match->position())) << ": write .png behind the name of every icon but fileopen";
        }
    }
}
