#pragma once

#include <vexel/base/SbRotation.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbRotation>;

/** A rotation; its text is axis and angle in radians. */
class VEXEL_API SoSFRotation : public SoSingleField<SbRotation> {
    SO_FIELD(SoSFRotation, SbRotation)
};
