#pragma once

#include <vexel/base/SbVec2i32.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec2i32>;

/** A list of vectors of two 32-bit numbers. */
class VEXEL_API SoMFVec2i32 : public SoMultiField<SbVec2i32> {
    SO_MFIELD(SoMFVec2i32, SbVec2i32)
};
