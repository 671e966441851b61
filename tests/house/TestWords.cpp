#include "RepositoryFiles.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

/** Text that does not belong into the files below a folder. The literal finds candidates fast, the pattern decides. */
struct WordRule {
    std::string folder;
    std::string literal;
    std::regex pattern;
    std::string advice;
};

std::vector<std::string> offences(const WordRule& rule, const RepositoryFile& file)
{
    std::vector<std::string> found;
    if (!startsWith(file.path, rule.folder))
        return found;
    for (auto at = file.text.find(rule.literal); at != std::string::npos; at = file.text.find(rule.literal, at + 1)) {
        const auto lineStart = file.text.rfind('\n', at) + 1;
        const auto lineEnd = std::min(file.text.find('\n', at), file.text.size());
        const std::string line = file.text.substr(lineStart, lineEnd - lineStart);
        if (std::regex_search(line, rule.pattern))
            found.push_back(file.at(at) + ": '" + line + "': " + rule.advice);
    }
    return found;
}

// The literals are put together from halves, so that this file does not offend against itself.
const std::vector<WordRule>& wordRules()
{
    const std::string reason =
        "say in the code's own words why it is so; how the work was planned does not belong here";
    const std::string wait =
        "waiting by the clock is slow and fails on a busy machine; wait for the signal or condition with a deadline "
        "(QTRY_VERIFY, QSignalSpy::wait, QTest::qWaitFor)";
    const auto rule = [](std::string folder, std::string literal, const std::string& pattern, std::string advice) {
        return WordRule{std::move(folder), std::move(literal), std::regex(pattern), std::move(advice)};
    };
    static const std::vector<WordRule> Rules{
        rule("", std::string("Pa") + "rt ", std::string("\\bPa") + "rt [0-9]\\.[0-9]", reason),
        rule("", std::string("the spec") + "ification", std::string("the spec") + "ification", reason),
        rule("", std::string("spec") + ".md", std::string("\\bspec") + "\\.md", reason),
        rule("", std::string("iss") + "ue", std::string("\\biss") + "ue #?[0-9]", reason),
        rule("tests/", std::string("qW") + "ait", std::string("\\bqW") + "ait\\s*\\(", wait),
        rule("tests/", std::string("qS") + "leep", std::string("\\bqS") + "leep\\s*\\(", wait),
        rule("tests/", std::string("sl") + "eep", std::string("\\b(u|nano|m)?sl") + "eep(_for|_until)?\\s*\\(", wait),
    };
    return Rules;
}

} // namespace

TEST(Words, PlanningTalkAndClockWaitsAreRecognised)
{
    const std::vector<std::string> bad{std::string("see Pa") + "rt 2.3",
                                       std::string("as the spec") + "ification says",
                                       std::string("shared/spec") + ".md",
                                       std::string("iss") + "ue #12",
                                       std::string("QTest::qW") + "ait(50);",
                                       std::string("QTest::qS") + "leep (50);",
                                       std::string("std::this_thread::sl") + "eep_for(1s);",
                                       std::string("usl") + "eep(1000);"};
    for (const std::string& line : bad) {
        std::size_t count = 0;
        for (const WordRule& rule : wordRules())
            count += offences(rule, {"tests/x.cpp", "// first\n" + line + "\n"}).size();
        EXPECT_EQ(count, 1u) << line;
    }
    const RepositoryFile good{"tests/x.cpp", "Part of it; QTest::qWaitFor(x); issue a warning; void sleepy();\n"};
    for (const WordRule& rule : wordRules())
        EXPECT_TRUE(offences(rule, good).empty()) << rule.literal;
}

TEST(Words, AreFitForTheRepository)
{
    for (const RepositoryFile& file : repositoryFiles()) {
        for (const WordRule& rule : wordRules()) {
            for (const std::string& offence : offences(rule, file))
                ADD_FAILURE() << offence;
        }
    }
}
