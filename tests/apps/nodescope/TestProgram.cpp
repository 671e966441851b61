#include <QProcess>
#include <gtest/gtest.h>

namespace {

struct Outcome {
    int status;
    QString out;
    QString err;
};

/** Runs the program in an environment without any display. */
Outcome runWithoutDisplay(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    process.setProcessEnvironment(environment);
    process.start(PROGRAM, arguments);
    if (!process.waitForFinished())
        return {-1, {}, process.errorString()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

TEST(Program, HelpNeedsNoDisplay)
{
    const Outcome outcome = runWithoutDisplay({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.startsWith("Usage: nodescope [options] [FILE]\n")) << outcome.out.toStdString();
    EXPECT_EQ(outcome.err, "");
}

TEST(Program, VersionNeedsNoDisplay)
{
    const Outcome outcome = runWithoutDisplay({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "nodescope " NODESCOPE_VERSION "\n");
}

TEST(Program, AMistakeIsExplained)
{
    const Outcome outcome = runWithoutDisplay({"--colour"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "nodescope: unknown option '--colour'; see nodescope --help\n");
}
