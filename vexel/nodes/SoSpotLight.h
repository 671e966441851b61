#pragma once

#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoLight.h>

/** Light from a point into a cone. */
class VEXEL_API SoSpotLight : public SoLight {
    SO_NODE(SoSpotLight, SoLight)
public:
    SoSFVec3f location{this, "location", SbVec3f(0, 0, 1)};
    /** The axis of the cone, away from the location. */
    SoSFVec3f direction{this, "direction", SbVec3f(0, 0, -1)};
    /** 0 for even light to 1 for light that is gathered about the axis. */
    SoSFFloat dropOffRate{this, "dropOffRate", 0};
    /** Between axis and edge of the cone, in radians. */
    SoSFFloat cutOffAngle{this, "cutOffAngle", 0.785398163f};
};
