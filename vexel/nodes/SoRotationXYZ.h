#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbRotation.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoTransformation.h>

/** Turns about one of the axes. */
class VEXEL_API SoRotationXYZ : public SoTransformation {
    SO_NODE(SoRotationXYZ, SoTransformation)
public:
    enum Axis { X, Y, Z };
    static constexpr SoEnumEntry Axis_names[] = {{"X", X}, {"Y", Y}, {"Z", Z}};

    SoSFEnum axis{this, "axis", X, Axis_names};
    /** In radians. */
    SoSFFloat angle{this, "angle", 0};

    SbRotation getRotation() const;
    SbMatrix getMatrix(const SoState& state) const override;
};
