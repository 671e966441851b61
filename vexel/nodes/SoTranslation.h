#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoTransformation.h>

/** Moves. */
class VEXEL_API SoTranslation : public SoTransformation {
    SO_NODE(SoTranslation, SoTransformation)
public:
    SoSFVec3f translation{this, "translation", SbVec3f(0, 0, 0)};

    SbMatrix getMatrix(const SoState& state) const override;
};
