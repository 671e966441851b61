#include <apps/nodescope/CommandLine.h>

#include <gtest/gtest.h>

using Request = CommandLine::Request;

namespace {

CommandLine parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "nodescope");
    return CommandLine::parse(int(arguments.size()), arguments.data());
}

} // namespace

TEST(CommandLine, WithoutArgumentsOpensAWindow)
{
    const CommandLine line = parse({});
    EXPECT_EQ(line.request, Request::OpenWindow);
    EXPECT_EQ(line.sceneFile, "");
    EXPECT_EQ(line.screenshot, "");
}

TEST(CommandLine, TakesTheLastFile)
{
    EXPECT_EQ(parse({"a.vx", "b.vx"}).sceneFile, "b.vx");
    EXPECT_EQ(parse({"--", "--odd.vx"}).sceneFile, "--odd.vx");
}

TEST(CommandLine, TakesThePictureName)
{
    const CommandLine line = parse({"--screenshot", "p.png", "a.vx"});
    EXPECT_EQ(line.request, Request::OpenWindow);
    EXPECT_EQ(line.screenshot, "p.png");
    EXPECT_EQ(line.sceneFile, "a.vx");
}

TEST(CommandLine, AnswersHelpAndVersionBeforeAnythingElse)
{
    EXPECT_EQ(parse({"a.vx", "--help", "--bad"}).request, Request::ShowHelp);
    EXPECT_EQ(parse({"-h"}).request, Request::ShowHelp);
    EXPECT_EQ(parse({"--version"}).request, Request::ShowVersion);
}

TEST(CommandLine, SaysWhatIsWrong)
{
    EXPECT_EQ(parse({"--screenshot"}).request, Request::Invalid);
    EXPECT_EQ(parse({"--screenshot"}).problem,
              "--screenshot needs the name of the picture to write; see nodescope --help");
    EXPECT_EQ(parse({"--colour"}).problem, "unknown option '--colour'; see nodescope --help");
}
