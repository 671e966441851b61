#include "RepositoryFiles.h"

#include <gtest/gtest.h>
#include <regex>

// A document quotes a compiled file as
//     <!-- FILE: NAME -->
//     ```cpp
//     ...
//     ```
// where FILE holds the same lines between "// [NAME]" and "// [end]". Without a NAME it quotes the whole file.

namespace {

struct Quote {
    std::string file;
    std::string name;
    std::string text;
    std::size_t offset;
};

std::vector<Quote> quotesIn(const std::string& document)
{
    static const std::regex Pattern("<!-- ([^ :]+)(?:: (\\w+))? -->\n```\\w+\n([^`]*)```");
    std::vector<Quote> quotes;
    for (std::sregex_iterator match(document.begin(), document.end(), Pattern), end; match != end; ++match)
        quotes.push_back({(*match)[1], (*match)[2], (*match)[3], std::size_t(match->position())});
    return quotes;
}

/** What stands between the markers, empty when there are none; all without a name. */
std::string markedPart(const std::string& source, const std::string& name)
{
    if (name.empty())
        return source;
    const std::string begin = "// [" + name + "]\n";
    const auto from = source.find(begin);
    if (from == std::string::npos)
        return {};
    const auto start = from + begin.size();
    const auto end = source.find("// [end]", start);
    return end == std::string::npos ? std::string() : source.substr(start, end - start);
}

} // namespace

TEST(Snippets, AreFoundByTheirMarkers)
{
    const auto quotes = quotesIn("text\n<!-- a/b.cpp: part -->\n```cpp\nint x;\n```\nmore\n```cpp\nint y;\n```\n");
    ASSERT_EQ(quotes.size(), 1u);
    EXPECT_EQ(quotes[0].file, "a/b.cpp");
    EXPECT_EQ(quotes[0].name, "part");
    EXPECT_EQ(quotes[0].text, "int x;\n");
    EXPECT_EQ(markedPart("int a;\n// [part]\nint x;\n// [end]\n", "part"), "int x;\n");
    EXPECT_EQ(markedPart("// [part]\nint x;\n", "part"), "");
    EXPECT_EQ(markedPart("int x;\n", "part"), "");
    const auto wholes = quotesIn("<!-- a/c.xml -->\n```xml\n<x/>\n```\n");
    ASSERT_EQ(wholes.size(), 1u);
    EXPECT_EQ(wholes[0].name, "");
    EXPECT_EQ(markedPart("<x/>\n", wholes[0].name), wholes[0].text);
}

TEST(Snippets, SayWhatTheCompiledFilesSay)
{
    std::size_t checked = 0;
    for (const RepositoryFile& document : repositoryFiles()) {
        if (!endsWith(document.path, ".md"))
            continue;
        for (const Quote& quote : quotesIn(document.text)) {
            ++checked;
            std::string part;
            for (const RepositoryFile& source : repositoryFiles()) {
                if (source.path == quote.file)
                    part = markedPart(source.text, quote.name);
            }
            EXPECT_EQ(quote.text, part) << document.at(quote.offset) << ": copy the lines between '// [" << quote.name
                                        << "]' and '// [end]' of " << quote.file
                                        << " here, or without a name the whole file";
        }
    }
    EXPECT_GT(checked, 0u);
}
