#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>

/** How shapes look. */
class VEXEL_API SoAppearanceKit : public SoBaseKit {
    SO_KIT(SoAppearanceKit, SoBaseKit)
public:
    SoSFNode lightModel{this, "lightModel"};
    SoSFNode environment{this, "environment"};
    SoSFNode drawStyle{this, "drawStyle"};
    SoSFNode material{this, "material"};
    SoSFNode complexity{this, "complexity"};
    SoSFNode texture2{this, "texture2"};
    SoSFNode font{this, "font"};
};
