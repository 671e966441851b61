#pragma once

#include <vexel/base/SbColorRGBA.h>
#include <vexel/base/SbViewportRegion.h>
#include <vexel/base/VexelApi.h>
#include <vexel/sensors/SoNodeSensor.h>
#include <vexel/sensors/SoOneShotSensor.h>

#include <memory>

class SoEvent;
class SoGLRenderAction;
class SoHandleEventAction;
class SoNode;
class SoSceneManagerImpl;

/** Draws one scene graph and offers events to it; asks for a new picture whenever the graph changed. */
class VEXEL_API SoSceneManager {
public:
    using RenderCB = void (*)(void* data, SoSceneManager* manager);

    SoSceneManager();
    SoSceneManager(const SoSceneManager&) = delete;
    SoSceneManager& operator=(const SoSceneManager&) = delete;
    virtual ~SoSceneManager();

    /** The scene, held while it is set; null for none. */
    void setSceneGraph(SoNode* root);
    SoNode* getSceneGraph() const { return m_root; }

    /** The action that draws; the manager takes it over. Null for the standard one. */
    void setGLRenderAction(SoGLRenderAction* action);
    SoGLRenderAction* getGLRenderAction() const { return m_renderAction.get(); }
    SoHandleEventAction* getHandleEventAction() const { return m_eventAction.get(); }

    void setBackgroundColorRGBA(const SbColorRGBA& color);
    const SbColorRGBA& getBackgroundColorRGBA() const { return m_background; }
    void setViewportRegion(const SbViewportRegion& region);
    const SbViewportRegion& getViewportRegion() const { return m_region; }

    /** Draws into the OpenGL context that is current. */
    void render();
    /** Frees what was put on the graphics card; the context must be current. */
    void releaseGraphics();
    /** Offers an event to the scene; answers whether a node handled it. */
    bool processEvent(const SoEvent& event);

    /** Asks for a new picture soon; any number of calls make one picture. */
    void scheduleRedraw();
    /** Called when a new picture is due. */
    void setRenderCallback(RenderCB function, void* data);
    /** Called before each picture; what it changes in the graph is in that picture and asks for no other. */
    void setPrepareCallback(RenderCB function, void* data);

    SoSceneManagerImpl* getSceneManagerImpl() const { return m_impl.get(); }

private:
    std::unique_ptr<SoSceneManagerImpl> m_impl;
    std::unique_ptr<SoGLRenderAction> m_renderAction;
    std::unique_ptr<SoHandleEventAction> m_eventAction;
    SoNode* m_root = nullptr;
    SoNodeSensor m_changes;
    SoOneShotSensor m_redraw;
    RenderCB m_renderFunction = nullptr;
    void* m_renderData = nullptr;
    RenderCB m_prepareFunction = nullptr;
    void* m_prepareData = nullptr;
    bool m_isRendering = false;
    SbColorRGBA m_background{0, 0, 0, 1};
    SbViewportRegion m_region;
};
