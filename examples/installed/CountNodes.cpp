#include <vexel/actions/SoSearchAction.h>
#include <vexel/base/SoPathList.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

// Prints in how many places a node stands in the scene of a file.

int main(int argc, char** argv)
{
    SoDB::init();
    SoInput input;
    if (argc != 2 || !input.openFile(argv[1]))
        return 2;
    SoSeparator* scene = SoDB::readAll(&input);
    if (!scene)
        return 1;
    scene->ref();
    SoSearchAction search;
    search.setType(SoNode::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(scene);
    std::printf("%d\n", search.getPaths().getLength());
    scene->unref();
    return 0;
}
