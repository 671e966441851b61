#pragma once

#include <vexel/base/SbPlane.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbPlane>;

/** A plane; its text is normal and distance from the origin. */
class VEXEL_API SoSFPlane : public SoSingleField<SbPlane> {
    SO_FIELD(SoSFPlane, SbPlane)
};
