#pragma once

#include <vexel/base/SbVec4i32.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec4i32>;

/** A list of vectors of four 32-bit numbers. */
class VEXEL_API SoMFVec4i32 : public SoMultiField<SbVec4i32> {
    SO_MFIELD(SoMFVec4i32, SbVec4i32)
};
