#include <nodescope/entry/EntryFunctions.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoSceneManager.h>

#include <cstdio>

// Ends while it is inspected: first a scene manager goes, then the program.

int main()
{
    SoDB::init();
    auto* root = new SoSeparator;
    root->ref();
    {
        SoSceneManager manager;
        manager.setSceneGraph(root);
        _startSceneManager(&manager, nullptr);
        std::printf("served: %d\n", _processEvents());
    }
    std::printf("without a scene manager: %d\n", _isRunning());
    std::printf("references: %d\n", root->getRefCount());
    _startNode(root, nullptr);
    std::printf("served: %d\n", _processEvents());
    return 0;
}
