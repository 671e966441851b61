#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoNode.h>

/** Whether light counts. */
class VEXEL_API SoLightModel : public SoNode {
    SO_NODE(SoLightModel, SoNode)
public:
    enum Model {
        BASE_COLOR, /**< the diffuse colour as it is */
        PHONG
    };
    static constexpr SoEnumEntry Model_names[] = {{"BASE_COLOR", BASE_COLOR}, {"PHONG", PHONG}};

    SoSFEnum model{this, "model", PHONG, Model_names};

    void doAction(SoAction& action) override;
};
