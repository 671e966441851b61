#pragma once

#include <vexel/base/SbVec3d.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec3d>;

/** A list of vectors of three numbers in double precision. */
class VEXEL_API SoMFVec3d : public SoMultiField<SbVec3d> {
    SO_MFIELD(SoMFVec3d, SbVec3d)
};
