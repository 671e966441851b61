#include <nodescope/entry/EntryFunctions.h>
#include <nodescope/mainframe/SceneFiles.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>

#include <cstdio>

// Starts the inspector as a program of its own, with the arguments that it gets, and says which file is open.

int main(int argc, char** argv)
{
    _startStandalone(argc, argv);
    std::printf("open: %s\n", qUtf8Printable(SoNodescopeViewer::getInstance()->sceneFiles().currentFile()));
    _stop();
    return 0;
}
