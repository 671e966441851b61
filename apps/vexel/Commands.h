#pragma once

#include <string>
#include <vector>

/** Exit status of the program. */
enum ExitStatus {
    All_good = 0,
    Had_read_errors = 1,
    Unreadable = 2, ///< a file could not be read or written at all, or the command line was wrong
};

using Arguments = std::vector<std::string>;

// Each command takes the arguments behind its name and answers the exit status.

int runInfo(const Arguments& arguments);
int runCheck(const Arguments& arguments);
int runConvert(const Arguments& arguments);
int runExport(const Arguments& arguments);
/** The ends of files that can be exported, for texts. */
std::string exportedEnds();
int runRender(const Arguments& arguments);

/** Prints what is wrong with the command line; answers Unreadable. */
int complain(const std::string& problem);
