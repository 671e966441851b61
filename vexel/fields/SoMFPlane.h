#pragma once

#include <vexel/base/SbPlane.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbPlane>;

/** A list of planes; their text is normal and distance from the origin. */
class VEXEL_API SoMFPlane : public SoMultiField<SbPlane> {
    SO_MFIELD(SoMFPlane, SbPlane)
};
