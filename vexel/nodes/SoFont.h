#pragma once

#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFName.h>
#include <vexel/nodes/SoNode.h>

/** The font of texts. */
class VEXEL_API SoFont : public SoNode {
    SO_NODE(SoFont, SoNode)
public:
    /** Family, by choice with a style behind a colon: "Times-Roman", "Sans:Bold Italic". */
    SoSFName name{this, "name", SbName("defaultFont")};
    /** Height: in points for 2D text, in units of space for 3D text. */
    SoSFFloat size{this, "size", 10};

    void doAction(SoAction& action) override;
};
