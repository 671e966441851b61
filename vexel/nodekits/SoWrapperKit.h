#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoSeparatorKit.h>

/** Puts any graph into a kit. */
class VEXEL_API SoWrapperKit : public SoSeparatorKit {
    SO_KIT(SoWrapperKit, SoSeparatorKit)
public:
    SoSFNode contentsSeparator{this, "contentsSeparator"};
    /** For the contents alone. */
    SoSFNode localTransform{this, "localTransform"};
    /** A Separator with the graph. */
    SoSFNode contents{this, "contents"};

    SoWrapperKit() { makeDefaultParts(); }
};
