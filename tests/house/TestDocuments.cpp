#include "RepositoryFiles.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace {

struct Link {
    std::string target; ///< as written, without a fragment
    std::size_t offset;
};

/** Code between fences has brackets too; blanks keep the places of all else. */
std::string withoutCode(std::string text)
{
    const std::string fence = "\n```";
    for (auto begin = text.find(fence); begin != std::string::npos; begin = text.find(fence, begin)) {
        const auto end = std::min(text.find(fence, begin + 1), text.size());
        std::fill(text.begin() + std::ptrdiff_t(begin), text.begin() + std::ptrdiff_t(end), ' ');
        begin = std::min(end + fence.size(), text.size());
    }
    return text;
}

std::vector<Link> localLinks(const std::string& document)
{
    const std::string text = withoutCode(document);
    static const std::regex Pattern(R"re(\]\(([^)\s]*)[^)]*\)|(?:src|href)="([^"]*)")re");
    std::vector<Link> links;
    for (std::sregex_iterator match(text.begin(), text.end(), Pattern), end; match != end; ++match) {
        const std::string whole = (*match)[1].matched ? (*match)[1] : (*match)[2];
        const std::string target = whole.substr(0, whole.find('#'));
        if (!target.empty() && target.find("://") == std::string::npos && !startsWith(target, "mailto:"))
            links.push_back({target, std::size_t(match->position())});
    }
    return links;
}

} // namespace

TEST(Documents, LocalLinksAreRecognised)
{
    const auto links =
        localLinks("[a](b/c.md#top) ![p](p.png \"title\") [w](https://x.org) [s](#here) <img src=\"q.png\">");
    ASSERT_EQ(links.size(), 3u);
    EXPECT_EQ(localLinks("x\n```cpp\n[a](b)\n```\n[c](d)\n```\n[e](f)\n").size(), 1u);
    EXPECT_EQ(links[0].target, "b/c.md");
    EXPECT_EQ(links[1].target, "p.png");
    EXPECT_EQ(links[2].target, "q.png");
}

TEST(Documents, LinkToFilesThatExist)
{
    namespace fs = std::filesystem;
    std::size_t checked = 0;
    for (const RepositoryFile& file : repositoryFiles()) {
        if (!endsWith(file.path, ".md"))
            continue;
        for (const Link& link : localLinks(file.text)) {
            ++checked;
            const fs::path target = fs::path(SOURCE_FOLDER) / fs::path(file.path).parent_path() / link.target;
            EXPECT_TRUE(fs::exists(target)) << file.at(link.offset) << ": links to '" << link.target
                                            << "', which does not exist; correct the path or remove the link";
        }
    }
    EXPECT_GT(checked, 0u) << "no links found below " SOURCE_FOLDER;
}
