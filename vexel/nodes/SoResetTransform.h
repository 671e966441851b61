#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/nodes/SoTransformation.h>

/** Goes back to world space. */
class VEXEL_API SoResetTransform : public SoTransformation {
    SO_NODE(SoResetTransform, SoTransformation)
public:
    enum ResetType { TRANSFORM = 1, BBOX = 2 };
    static constexpr SoEnumEntry ResetType_names[] = {{"TRANSFORM", TRANSFORM}, {"BBOX", BBOX}};

    /** What is reset: the transform, or the bounding box that was gathered so far. */
    SoSFBitMask whatToReset{this, "whatToReset", TRANSFORM, ResetType_names};

    SbMatrix getMatrix(const SoState& state) const override;
    void doAction(SoAction& action) override;
};
