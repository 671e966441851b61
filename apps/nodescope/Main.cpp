#include "CommandLine.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <cstdio>

namespace {

int openWindow(const CommandLine& line, int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    SoCommandManager manager;
    SoNodescopeMainFrame frame;
    frame.setUp(&manager, SoNodescopeMainFrame::Hosting::Standalone);
    manager.initialize(&frame);
    frame.restoreSettings();
    frame.show();
    if (!line.screenshot.empty()) {
        QTimer::singleShot(0, &frame, [&] {
            const QString name = QString::fromLocal8Bit(line.screenshot.c_str());
            const bool written = frame.grab().save(name);
            if (!written)
                std::fprintf(stderr, "nodescope: cannot write the picture '%s'; check folder and file extension\n",
                             line.screenshot.c_str());
            QApplication::exit(written ? 0 : 1);
        });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const CommandLine line = CommandLine::parse(argc, argv);
    switch (line.request) {
    case CommandLine::Request::ShowHelp:
        std::fputs(CommandLine::usage(), stdout);
        return 0;
    case CommandLine::Request::ShowVersion:
        std::puts("nodescope " NODESCOPE_VERSION);
        return 0;
    case CommandLine::Request::Invalid:
        std::fprintf(stderr, "nodescope: %s\n", line.problem.c_str());
        return 2;
    case CommandLine::Request::OpenWindow:
        break;
    }
    return openWindow(line, argc, argv);
}
