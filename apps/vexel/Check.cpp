#include "SceneFile.h"

#include <algorithm>
#include <cstdio>

int runCheck(const Arguments& arguments)
{
    if (arguments.empty())
        return complain("check needs at least one file");
    int status = All_good;
    for (const std::string& fileName : arguments) {
        const SceneFile file(fileName);
        status = std::max<int>(status, file.status());
        if (file.status() == All_good)
            std::printf("%s: good\n", fileName.c_str());
        else if (file.root())
            std::printf("%s: %d errors\n", fileName.c_str(), file.numErrors());
        else
            std::printf("%s: cannot be read\n", fileName.c_str());
    }
    return status;
}
