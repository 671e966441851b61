#pragma once

#include <vexel/fields/SoField.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/nodekits/SoInteractionKit.h>

/** Base of what can be dragged with the pointer: kits that show handles and turn motion into values. */
class VEXEL_API SoDragger : public SoInteractionKit {
    SO_KIT_ABSTRACT(SoDragger, SoInteractionKit)
public:
    /** True while the user drags. */
    SoSFBool isActive{this, "isActive", false};

protected:
    SoDragger() { isActive.setFieldType(SoField::OUTPUT_ONLY); }
};
