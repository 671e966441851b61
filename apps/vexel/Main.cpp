#include "Commands.h"

#include <vexel/base/SoError.h>
#include <vexel/io/SoDB.h>

#include <QGuiApplication>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

struct Command {
    const char* name;
    const char* usage;
    std::string purpose;
    int (*run)(const Arguments& arguments);
    bool needsFonts;
};

const std::vector<Command>& commands()
{
    static const std::vector<Command> Table{
        {"info", "info FILE", "what a scene consists of: nodes by type, triangles, box, depth, shared nodes", runInfo,
         true},
        {"check", "check FILE...", "reads files and prints what is wrong with them, with file, line and column",
         runCheck, false},
        {"convert", "convert IN OUT [--ascii | --binary]",
         "writes a scene anew, compressed when OUT ends in vxz or gz; in the form of IN unless told otherwise",
         runConvert, false},
        {"export", "export FILE OUT", "draws a scene into a file of lines and surfaces: " + exportedEnds(), runExport,
         true},
        {"render", "render FILE OUT.png [--size WxH]", "draws a scene into a picture, without a display", runRender,
         true},
    };
    return Table;
}

void printUsage()
{
    std::puts("Usage: vexel COMMAND ...\n\nWorks on Vexel scene files.\n");
    for (const Command& command : commands())
        std::printf("  vexel %-36s %s\n", command.usage, command.purpose.c_str());
    std::puts("  vexel --help                               this text\n"
              "  vexel --version                            the version of the program\n\n"
              "Exit status: 0 when all was good, 1 when a file had errors and was read as far as possible,\n"
              "2 when a file could not be read or written at all.");
}

} // namespace

int complain(const std::string& problem)
{
    std::fprintf(stderr, "vexel: %s; see vexel --help\n", problem.c_str());
    return Unreadable;
}

int main(int argc, char** argv)
{
    const Arguments arguments(argv + 1, argv + argc);
    if (arguments.empty())
        return complain("a command is missing");
    for (const std::string& argument : arguments) {
        if (argument == "--help") {
            printUsage();
            return All_good;
        }
    }
    if (arguments[0] == "--version") {
        std::puts("vexel " NODESCOPE_VERSION);
        return All_good;
    }
    for (const Command& command : commands()) {
        if (arguments[0] == command.name) {
            std::optional<QGuiApplication> application;
            if (command.needsFonts) {
                qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts"); // no command needs a display
                application.emplace(argc, argv);
            }
            SoDB::init();
            return command.run(Arguments(arguments.begin() + 1, arguments.end()));
        }
    }
    return complain("there is no command \"" + arguments[0] + "\"");
}
