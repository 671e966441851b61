#pragma once

#include <nodescope/NodescopeApi.h>

#include <vexel/base/SbVec2s.h>

class QWidget;
class SbViewportRegion;
class SoGuiRenderArea;
class SoNode;
class SoSceneManager;

// What a host that loads the library by name finds in it; see SoNodescopeImpl.

extern "C" {
NODESCOPE_API void _startNode(SoNode* root, QWidget* parent);
NODESCOPE_API void _startRenderArea(SoGuiRenderArea* renderArea);
NODESCOPE_API void _startSceneManager(SoSceneManager* sceneManager, QWidget* parent);
NODESCOPE_API void _startStandalone(int argc, char** argv);
NODESCOPE_API void _stop();
NODESCOPE_API int _isRunning();
NODESCOPE_API int _processEvents();
/** Does nothing: hosts of an older interface call it. */
NODESCOPE_API void _setSceneGraph(void* unused);
NODESCOPE_API void _setPickAction(const SbViewportRegion& region, SbVec2s cursor);
}
