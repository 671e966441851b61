#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/** A ball about the origin. */
class VEXEL_API SoSphere : public SoShape {
    SO_NODE(SoSphere, SoShape)
public:
    SoSFFloat radius{this, "radius", 1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState& state) const override;
    unsigned getDependencies() const override { return ON_COMPLEXITY; }
};
