#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoNode.h>

/** Light from everywhere, its loss over distance, and fog. */
class VEXEL_API SoEnvironment : public SoNode {
    SO_NODE(SoEnvironment, SoNode)
public:
    enum FogType { NONE, HAZE, FOG, SMOKE };
    static constexpr SoEnumEntry FogType_names[] = {{"NONE", NONE}, {"HAZE", HAZE}, {"FOG", FOG}, {"SMOKE", SMOKE}};

    SoSFFloat ambientIntensity{this, "ambientIntensity", 0.2f};
    SoSFColor ambientColor{this, "ambientColor", SbColor(1, 1, 1)};
    /** Loss of point and spot lights by squared distance, distance, and at once. */
    SoSFVec3f attenuation{this, "attenuation", SbVec3f(0, 0, 1)};
    SoSFEnum fogType{this, "fogType", NONE, FogType_names};
    SoSFColor fogColor{this, "fogColor", SbColor(1, 1, 1)};
    /** Distance at which nothing but fog is seen; 0 for the far end of the view. */
    SoSFFloat fogVisibility{this, "fogVisibility", 0};

    void doAction(SoAction& action) override;
};
