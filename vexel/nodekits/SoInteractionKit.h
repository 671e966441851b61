#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

/** Base of the kits that answer to the user. */
class VEXEL_API SoInteractionKit : public SoBaseKit {
    SO_KIT(SoInteractionKit, SoBaseKit)
public:
    SoSFNode topSeparator{this, "topSeparator"};
    SoSFNode geomSeparator{this, "geomSeparator"};

    SoInteractionKit() { makeDefaultParts(); }
};
