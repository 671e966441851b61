#include "CommandLine.h"

#include <string_view>

namespace {

CommandLine invalid(std::string problem)
{
    CommandLine line;
    line.request = CommandLine::Request::Invalid;
    line.problem = std::move(problem) + "; see nodescope --help";
    return line;
}

} // namespace

const char* CommandLine::usage()
{
    return "Usage: nodescope [options] [FILE]\n"
           "Shows the scene graph of FILE (.vx, .vxz, .vx.gz) as a tree beside a 3D view, for inspecting and editing.\n"
           "\n"
           "Options:\n"
           "  --screenshot PNG  draw the window once, write its picture to PNG and leave\n"
           "  --version         show the version and leave\n"
           "  --help            show this text and leave\n"
           "\n"
           "Exit status: 0 done; 1 the picture cannot be written; 2 a mistake in the options, or FILE cannot be "
           "read.\n";
}

CommandLine CommandLine::parse(int argc, const char* const* argv)
{
    CommandLine line;
    bool optionsOver = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const bool isOption = !optionsOver && argument.size() > 1 && argument.front() == '-';
        if (!isOption) {
            line.sceneFile = argument;
        } else if (argument == "--") {
            optionsOver = true;
        } else if (argument == "--help" || argument == "-h") {
            line.request = Request::ShowHelp;
            return line;
        } else if (argument == "--version") {
            line.request = Request::ShowVersion;
            return line;
        } else if (argument == "--screenshot") {
            if (++i == argc)
                return invalid("--screenshot needs the name of the picture to write");
            line.screenshot = argv[i];
        } else {
            return invalid("unknown option '" + std::string(argument) + "'");
        }
    }
    return line;
}
