#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoNode.h>

/** How finely curved shapes are cut into faces, and textures are sampled. */
class VEXEL_API SoComplexity : public SoNode {
    SO_NODE(SoComplexity, SoNode)
public:
    enum Type {
        OBJECT_SPACE, /**< value counts alone */
        SCREEN_SPACE, /**< treated as OBJECT_SPACE */
        BOUNDING_BOX  /**< only boxes are drawn */
    };
    static constexpr SoEnumEntry Type_names[] = {
        {"OBJECT_SPACE", OBJECT_SPACE}, {"SCREEN_SPACE", SCREEN_SPACE}, {"BOUNDING_BOX", BOUNDING_BOX}};

    SoSFEnum type{this, "type", OBJECT_SPACE, Type_names};
    /** 0 coarse to 1 fine. */
    SoSFFloat value{this, "value", 0.5f};
    /** 0 without textures, below 0.25 in texels with hard edges, below 0.5 smooth, from there on also smooth far off.
     */
    SoSFFloat textureQuality{this, "textureQuality", 0.5f};

    void doAction(SoAction& action) override;
};
