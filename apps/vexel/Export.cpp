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

namespace {

// [export]
/** False, and the reason in `problem`, when the file was not written. */
bool exportScene(SoNode* scene, const VectorFormat& format, const SbString& fileName, SbString& problem)
{
    SoPlotkit::init();
    const std::unique_ptr<VectorExport> output = format.create();
    bool isWritten = output->openFile(fileName);
    if (isWritten) {
        output->apply(scene);
        isWritten = output->closeFile();
    }
    if (!isWritten)
        problem = output->getErrorText();
    SoPlotkit::finish();
    return isWritten;
}
// [end]

} // namespace

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

    SbString problem;
    if (exportScene(file.root(), *format, SbString(arguments[1]), problem))
        return file.status();
    std::fprintf(stderr, "vexel: %s\n", problem.toUtf8().constData());
    return Unreadable;
}
