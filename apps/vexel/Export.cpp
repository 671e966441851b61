#include "SceneFile.h"

#include <plotkit/SoPlotkit.h>
#include <plotkit/VectorFormat.h>
#include <vexel/base/SbString.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

std::string exportedEnds()
{
    std::string text;
    for (const VectorFormat& format : VectorFormat::all())
        text += (text.empty() ? "" : ", ") + std::string(format.extension);
    return text;
}

int runExport(const Arguments& arguments)
{
    if (arguments.size() != 2)
        return complain("export needs a scene and a file to write");
    const VectorFormat* const format = VectorFormat::ofFile(arguments[1]);
    if (!format)
        return complain("\"" + arguments[1] + "\" ends in none of " + exportedEnds());
    const SceneFile file(arguments[0]);
    if (!file.root())
        return file.status();

    SoPlotkit::init();
    const std::unique_ptr<VectorExport> output = format->create();
    bool isWritten = output->openFile(SbString(arguments[1]));
    if (isWritten) {
        output->apply(file.root());
        isWritten = output->closeFile();
    }
    SoPlotkit::finish();
    if (isWritten)
        return file.status();
    std::fprintf(stderr, "vexel: %s\n", output->getErrorText().toUtf8().constData());
    return Unreadable;
}
