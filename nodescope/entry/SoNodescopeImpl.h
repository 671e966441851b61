#pragma once

#include <nodescope/NodescopeApi.h>

#include <vexel/base/SbVec2s.h>

class QWidget;
class SbViewportRegion;
class SoGuiRenderArea;
class SoNode;
class SoSceneManager;

/**
 * Starts and stops the inspection. There is at most one in a process: a start while one is running does nothing. All
 * functions belong to the thread that has, or gets, the Qt application object.
 */
class NODESCOPE_API SoNodescopeImpl {
public:
    virtual ~SoNodescopeImpl();

    /** Runs as a program of its own; the last argument, if there is any, names a scene file to open. Does not enter an
     * event loop. The preference VXL_DISABLE_MAINLOOP keeps the window hidden. */
    static void startStandalone(int& argc, char** argv);
    /** Inspects a graph; the window belongs to `parent` and the inspection ends with that. */
    static void startNode(SoNode* root, QWidget* parent);
    /** Inspects what a render area shows; ends at the latest with its scene manager. */
    static void startRenderArea(SoGuiRenderArea* renderArea);
    /** Inspects what a scene manager draws; ends at the latest with that. */
    static void startSceneManager(SoSceneManager* sceneManager, QWidget* parent);

    /** To be called regularly by a host with a main loop of its own: serves the windows when the application object is
     * the inspector's, and carries out a stop that was asked for. Answers isRunning(). */
    static int processEvents();
    static bool isRunning();
    /** Selects what stands under a place of the host's picture, in pixels from the lower left; nothing while no
     * inspection runs. */
    static void setPickAction(const SbViewportRegion& region, SbVec2s cursor);

    /** Ends the inspection: at once, or when processEvents() is called next. */
    static void requestStop(bool immediate);
};
