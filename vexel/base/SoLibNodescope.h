#pragma once

#include <vexel/base/SbVec2s.h>
#include <vexel/base/VexelApi.h>

#include <memory>

class QWidget;
class SbViewportRegion;
class SoGuiRenderArea;
class SoNode;
class SoSceneManager;

/**
 * The inspector for live scene graphs, if it is installed: a library that is loaded by name when it is first used.
 * There is at most one inspection at a time; starting another does nothing. GUI thread only.
 */
class VEXEL_API SoLibNodescope {
public:
    /** Whether the inspector was loaded. Does not load it. */
    static bool isAvailable();
    /** The inspector, loaded on first use; null, with an SoDebugError, when it cannot be loaded. It then stays in
     * memory. */
    static SoLibNodescope* instance();

    SoLibNodescope(const SoLibNodescope&) = delete;
    SoLibNodescope& operator=(const SoLibNodescope&) = delete;

    /** Inspects a graph; the inspector's window belongs to `parent`, or stands alone when that is null. */
    void startNode(SoNode* root, QWidget* parent);
    /** Inspects what a render area shows. */
    void startRenderArea(SoGuiRenderArea* renderArea);
    /** Inspects what a scene manager draws. */
    void startSceneManager(SoSceneManager* sceneManager, QWidget* parent);
    void stop();
    bool isRunning() const;
    /** To be called regularly by a host with a main loop of its own; answers isRunning(). */
    bool processEvents();
    /** Selects in the inspector what stands under a place of the host's picture, in pixels from the lower left. */
    void setPickAction(const SbViewportRegion& region, SbVec2s cursor);

private:
    struct Functions;

    explicit SoLibNodescope(std::unique_ptr<Functions> functions);
    ~SoLibNodescope();

    std::unique_ptr<Functions> m_functions;
};
