#include "EntryFunctions.h"
#include "SoNodescopeImpl.h"

void _startNode(SoNode* root, QWidget* parent)
{
    SoNodescopeImpl::startNode(root, parent);
}

void _startRenderArea(SoGuiRenderArea* renderArea)
{
    SoNodescopeImpl::startRenderArea(renderArea);
}

void _startSceneManager(SoSceneManager* sceneManager, QWidget* parent)
{
    SoNodescopeImpl::startSceneManager(sceneManager, parent);
}

void _startStandalone(int argc, char** argv)
{
    // The application object keeps a reference to the number of arguments.
    static int count;
    count = argc;
    SoNodescopeImpl::startStandalone(count, argv);
}

void _stop()
{
    SoNodescopeImpl::requestStop(true);
}

int _isRunning()
{
    return SoNodescopeImpl::isRunning();
}

int _processEvents()
{
    return SoNodescopeImpl::processEvents();
}

void _setSceneGraph(void*) {}

void _setPickAction(const SbViewportRegion& region, SbVec2s cursor)
{
    SoNodescopeImpl::setPickAction(region, cursor);
}
