#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

class SoCameraKit;

/** A whole scene: cameras, lights and kits. */
class VEXEL_API SoSceneKit : public SoBaseKit {
    SO_KIT(SoSceneKit, SoBaseKit)
public:
    SoSFNode topSeparator{this, "topSeparator"};
    /** CameraKits, of which one is in use. */
    SoSFNode cameraList{this, "cameraList"};
    /** LightKits. */
    SoSFNode lightList{this, "lightList"};
    /** ShapeKits, SeparatorKits and others. */
    SoSFNode childList{this, "childList"};

    SoSceneKit() { makeDefaultParts(); }

    /** Number of the camera in use; -1 for none. */
    int getCameraNumber() const;
    void setCameraNumber(int number);
    /** A camera that is not in the list changes nothing. */
    void setCameraNumber(const SoCameraKit* camera);
};
