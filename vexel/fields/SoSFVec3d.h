#pragma once

#include <vexel/base/SbVec3d.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec3d>;

/** A vector of three numbers in double precision. */
class VEXEL_API SoSFVec3d : public SoSingleField<SbVec3d> {
    SO_FIELD(SoSFVec3d, SbVec3d)
};
