#pragma once

#include <vexel/base/SbRotation.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbRotation>;

/** A list of rotations; their text is axis and angle in radians. */
class VEXEL_API SoMFRotation : public SoMultiField<SbRotation> {
    SO_MFIELD(SoMFRotation, SbRotation)
};
