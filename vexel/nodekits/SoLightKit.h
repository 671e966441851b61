#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

/** A light with a place of its own, and by choice something to see of it. */
class VEXEL_API SoLightKit : public SoBaseKit {
    SO_KIT(SoLightKit, SoBaseKit)
public:
    SoSFNode transformGroup{this, "transformGroup"};
    SoSFNode transform{this, "transform"};
    /** Any light; a DirectionalLight at first. */
    SoSFNode light{this, "light"};
    SoSFNode iconSeparator{this, "iconSeparator"};
    /** A graph that shows the light. */
    SoSFNode icon{this, "icon"};

    SoLightKit() { makeDefaultParts(); }
};
