#pragma once

#include <string>

/** What the user asked for on the command line. */
struct CommandLine {
    enum class Request { OpenWindow, ShowHelp, ShowVersion, Invalid };

    Request request = Request::OpenWindow;
    std::string sceneFile;  ///< scene file to open; empty: none
    std::string screenshot; ///< picture file to write before leaving; empty: stay open
    std::string problem;    ///< what is wrong and what to do, for Request::Invalid

    static CommandLine parse(int argc, const char* const* argv);
    static const char* usage();
};
