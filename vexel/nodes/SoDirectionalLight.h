#pragma once

#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoLight.h>

/** Light from so far away that its rays are parallel. */
class VEXEL_API SoDirectionalLight : public SoLight {
    SO_NODE(SoDirectionalLight, SoLight)
public:
    /** Where the rays go. */
    SoSFVec3f direction{this, "direction", SbVec3f(0, 0, -1)};
};
