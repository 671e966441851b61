#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

/** A separator with an appearance, a transform and a list of kits below. */
class VEXEL_API SoSeparatorKit : public SoBaseKit {
    SO_KIT(SoSeparatorKit, SoBaseKit)
public:
    SoSFNode topSeparator{this, "topSeparator"};
    SoSFNode pickStyle{this, "pickStyle"};
    /** An AppearanceKit. */
    SoSFNode appearance{this, "appearance"};
    SoSFNode units{this, "units"};
    SoSFNode transform{this, "transform"};
    SoSFNode texture2Transform{this, "texture2Transform"};
    /** ShapeKits and SeparatorKits. */
    SoSFNode childList{this, "childList"};

    SoSeparatorKit() { makeDefaultParts(); }
};
