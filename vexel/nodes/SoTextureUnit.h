#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoNode.h>

/** Chooses the texture unit that the texture nodes behind are for. */
class VEXEL_API SoTextureUnit : public SoNode {
    SO_NODE(SoTextureUnit, SoNode)
public:
    enum MappingMethod { IMAGE_MAPPING, BUMP_MAPPING };
    static constexpr SoEnumEntry MappingMethod_names[] = {{"IMAGE_MAPPING", IMAGE_MAPPING},
                                                          {"BUMP_MAPPING", BUMP_MAPPING}};

    /** 0 to 3. */
    SoSFInt32 unit{this, "unit", 0};
    SoSFEnum mappingMethod{this, "mappingMethod", IMAGE_MAPPING, MappingMethod_names};

    void doAction(SoAction& action) override;
};
