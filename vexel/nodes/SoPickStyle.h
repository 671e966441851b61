#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoNode.h>

/** How shapes answer to picking. */
class VEXEL_API SoPickStyle : public SoNode {
    SO_NODE(SoPickStyle, SoNode)
public:
    enum Style { SHAPE, BOUNDING_BOX, UNPICKABLE };
    static constexpr SoEnumEntry Style_names[] = {
        {"SHAPE", SHAPE}, {"BOUNDING_BOX", BOUNDING_BOX}, {"UNPICKABLE", UNPICKABLE}};

    SoSFEnum style{this, "style", SHAPE, Style_names};

    void doAction(SoAction& action) override;
};
