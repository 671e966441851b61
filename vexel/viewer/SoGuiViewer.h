#pragma once

#include <vexel/viewer/SoGuiRenderArea.h>

class SoCamera;

/** A render area with a camera that the user moves. */
class VEXEL_API SoGuiViewer : public virtual SoGuiRenderArea {
public:
    /** In viewing mode the mouse moves the camera; otherwise its events go to the scene. */
    virtual void setViewing(bool on) = 0;
    virtual bool isViewing() const = 0;

    /** The camera in force: the first one of the scene, or the viewer's own. */
    virtual SoCamera* getCamera() const = 0;
    /** Lets the camera see the whole scene. */
    virtual void viewAll() = 0;
    /** Remembers the camera as it is, and goes back to that. */
    virtual void saveHomePosition() = 0;
    virtual void resetToHomePosition() = 0;
    /** A light that shines from the camera on. */
    virtual void setHeadlight(bool on) = 0;
    virtual bool isHeadlight() const = 0;
};
