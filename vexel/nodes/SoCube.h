#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/** A box about the origin. Parts for material binding: front, back, left, right, top, bottom. */
class VEXEL_API SoCube : public SoShape {
    SO_NODE(SoCube, SoShape)
public:
    /** Along x, y and z. */
    SoSFFloat width{this, "width", 2};
    SoSFFloat height{this, "height", 2};
    SoSFFloat depth{this, "depth", 2};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState& state) const override;
    unsigned getDependencies() const override { return ON_MATERIAL_BINDING; }
};
