#pragma once

#include <vexel/fields/SoMFUInt32.h>
#include <vexel/nodes/SoNode.h>

/** Diffuse colours with transparency, each in one number. */
class VEXEL_API SoPackedColor : public SoNode {
    SO_NODE(SoPackedColor, SoNode)
public:
    /** 0xRRGGBBAA; an alpha of 0xff is opaque. */
    SoMFUInt32 orderedRGBA{this, "orderedRGBA", 0xccccccff};

    void doAction(SoAction& action) override;
};
