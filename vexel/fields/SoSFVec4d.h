#pragma once

#include <vexel/base/SbVec4d.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec4d>;

/** A vector of four numbers in double precision. */
class VEXEL_API SoSFVec4d : public SoSingleField<SbVec4d> {
    SO_FIELD(SoSFVec4d, SbVec4d)
};
