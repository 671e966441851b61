#pragma once

#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoLight.h>

/** Light from a point into all directions. */
class VEXEL_API SoPointLight : public SoLight {
    SO_NODE(SoPointLight, SoLight)
public:
    SoSFVec3f location{this, "location", SbVec3f(0, 0, 1)};
};
