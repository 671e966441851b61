#include "SceneFile.h"

#include <vexel/actions/SoWriteAction.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

int runConvert(const Arguments& arguments)
{
    Arguments files;
    bool isAscii = false;
    bool isBinary = false;
    for (const std::string& argument : arguments) {
        if (argument == "--ascii")
            isAscii = true;
        else if (argument == "--binary")
            isBinary = true;
        else if (argument.rfind("--", 0) == 0)
            return complain("convert does not know \"" + argument + "\"");
        else
            files.push_back(argument);
    }
    if (files.size() != 2 || (isAscii && isBinary))
        return complain("convert needs a file to read, a file to write, and at most one of --ascii and --binary");

    const SceneFile in(files[0]);
    if (!in.root())
        return in.status();
    SoOutput out;
    out.setBinary(isBinary || (!isAscii && in.isBinary()));
    bool isWritten = out.openFile(SbString(files[1].c_str()));
    if (isWritten) {
        SoWriteAction(&out).apply(in.root());
        isWritten = out.closeFile();
    }
    if (!isWritten) {
        std::fprintf(stderr, "vexel: cannot write %s: %s\n", files[1].c_str(), out.getError().toUtf8().constData());
        return Unreadable;
    }
    return in.status();
}
