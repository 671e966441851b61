#pragma once

#include <nodescope/NodescopeApi.h>

class QWidget;
class SoNode;

// What a host that loads the library by name finds in it; see SoNodescopeImpl.

extern "C" {
NODESCOPE_API void _startNode(SoNode* root, QWidget* parent);
NODESCOPE_API void _startStandalone(int argc, char** argv);
NODESCOPE_API void _stop();
NODESCOPE_API int _isRunning();
NODESCOPE_API int _processEvents();
/** Does nothing: hosts of an older interface call it. */
NODESCOPE_API void _setSceneGraph(void* unused);
}
