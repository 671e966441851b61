#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/nodes/SoTransformation.h>

/** Turns about the origin. */
class VEXEL_API SoRotation : public SoTransformation {
    SO_NODE(SoRotation, SoTransformation)
public:
    SoSFRotation rotation{this, "rotation"};

    SbMatrix getMatrix(const SoState& state) const override;
};
