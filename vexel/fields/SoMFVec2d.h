#pragma once

#include <vexel/base/SbVec2d.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec2d>;

/** A list of vectors of two numbers in double precision. */
class VEXEL_API SoMFVec2d : public SoMultiField<SbVec2d> {
    SO_MFIELD(SoMFVec2d, SbVec2d)
};
