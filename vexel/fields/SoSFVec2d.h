#pragma once

#include <vexel/base/SbVec2d.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec2d>;

/** A vector of two numbers in double precision. */
class VEXEL_API SoSFVec2d : public SoSingleField<SbVec2d> {
    SO_FIELD(SoSFVec2d, SbVec2d)
};
