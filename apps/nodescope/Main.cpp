#include "CommandLine.h"
#include "UnattendedRun.h"

#include <nodescope/entry/SoNodescopeImpl.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>

#include <QApplication>
#include <QFileInfo>
#include <cstdio>

namespace {

enum ExitStatus { Done = 0, CannotWrite = 1, CannotRead = 2 /* or cannot understand the command line */ };

int complain(const std::string& problem)
{
    std::fprintf(stderr, "nodescope: %s\n", problem.c_str());
    return CannotRead;
}

bool canRead(const std::string& file)
{
    const QFileInfo info(QString::fromLocal8Bit(file.c_str()));
    return info.isFile() && info.isReadable();
}

/** Opens the window on the file and stays until the user closes it. */
ExitStatus runWindow(int& count, char** arguments)
{
    SoNodescopeImpl::startStandalone(count, arguments);
    QApplication::exec();
    return Done;
}

ExitStatus runScreenshot(const CommandLine& line, int& count, char** arguments)
{
    const UnattendedRun run;
    SoNodescopeImpl::startStandalone(count, arguments);
    const bool isRead =
        line.sceneFile.empty() || !SoNodescopeViewer::getInstance()->sceneFiles().currentFile().isEmpty();
    const bool isWritten = isRead && UnattendedRun::writeScreenshot(line.screenshot);
    SoNodescopeImpl::requestStop(false);
    return !isRead ? CannotRead : isWritten ? Done : CannotWrite;
}

int openFile(const CommandLine& line, char* program)
{
    std::string file = line.sceneFile;
    if (!file.empty() && !canRead(file))
        return complain("cannot read the scene file '" + file + "'; check its name and its permissions");
    // Options are not for the inspector, which takes the last argument for a scene.
    int count = file.empty() ? 1 : 2;
    char* arguments[] = {program, file.empty() ? nullptr : file.data(), nullptr};
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(count, arguments);
    const ExitStatus status =
        line.screenshot.empty() ? runWindow(count, arguments) : runScreenshot(line, count, arguments);
    SoNodescopeImpl::processEvents(); // carries out the stop
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    const CommandLine line = CommandLine::parse(argc, argv);
    switch (line.request) {
    case CommandLine::Request::ShowHelp:
        std::fputs(CommandLine::usage(), stdout);
        return Done;
    case CommandLine::Request::ShowVersion:
        std::puts("nodescope " NODESCOPE_VERSION);
        return Done;
    case CommandLine::Request::Invalid:
        return complain(line.problem);
    case CommandLine::Request::OpenWindow:
        break;
    }
    return openFile(line, argv[0]);
}
