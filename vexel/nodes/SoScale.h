#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoTransformation.h>

/** Scales about the origin. */
class VEXEL_API SoScale : public SoTransformation {
    SO_NODE(SoScale, SoTransformation)
public:
    SoSFVec3f scaleFactor{this, "scaleFactor", SbVec3f(1, 1, 1)};

    SbMatrix getMatrix(const SoState& state) const override;
};
