#pragma once

#include <vexel/base/SbVec4d.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec4d>;

/** A list of vectors of four numbers in double precision. */
class VEXEL_API SoMFVec4d : public SoMultiField<SbVec4d> {
    SO_MFIELD(SoMFVec4d, SbVec4d)
};
