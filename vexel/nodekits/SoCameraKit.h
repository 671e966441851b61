#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

/** A camera with a place of its own. */
class VEXEL_API SoCameraKit : public SoBaseKit {
    SO_KIT(SoCameraKit, SoBaseKit)
public:
    SoSFNode transformGroup{this, "transformGroup"};
    SoSFNode transform{this, "transform"};
    /** Any camera; a PerspectiveCamera at first. */
    SoSFNode camera{this, "camera"};

    SoCameraKit() { makeDefaultParts(); }
};
