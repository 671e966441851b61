#include "CommandLine.h"

#include <QApplication>
#include <QMainWindow>
#include <QPixmap>
#include <QTimer>
#include <cstdio>

namespace {

int openWindow(const CommandLine& line, int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Nodescope"));
    window.resize(1280, 800);
    window.show();
    if (!line.screenshot.empty()) {
        QTimer::singleShot(0, &window, [&] {
            const QString name = QString::fromLocal8Bit(line.screenshot.c_str());
            const bool written = window.grab().save(name);
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
