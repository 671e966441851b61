#pragma once

#include <vexel/base/SbColorRGBA.h>
#include <vexel/base/VexelApi.h>

class QWidget;
class SbViewportRegion;
class SoNode;
class SoSceneManager;

/** A place on the screen that shows a scene. */
class VEXEL_API SoGuiRenderArea {
public:
    SoGuiRenderArea() = default;
    SoGuiRenderArea(const SoGuiRenderArea&) = delete;
    SoGuiRenderArea& operator=(const SoGuiRenderArea&) = delete;
    virtual ~SoGuiRenderArea() = default;

    /** The widget as a whole, with decoration, and the one that the scene is drawn in. */
    virtual QWidget* getWidget() const = 0;
    virtual QWidget* getGLWidget() const = 0;
    virtual SoSceneManager* getSceneManager() const = 0;

    /** The scene, held while it is set. */
    virtual void setSceneGraph(SoNode* root) = 0;
    virtual SoNode* getSceneGraph() const = 0;
    void setBackgroundColorRGBA(const SbColorRGBA& color);
    /** Size in pixels of the picture. */
    const SbViewportRegion& getViewportRegion() const;
    void scheduleRedraw();
};
