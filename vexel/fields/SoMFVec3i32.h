#pragma once

#include <vexel/base/SbVec3i32.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec3i32>;

/** A list of vectors of three 32-bit numbers. */
class VEXEL_API SoMFVec3i32 : public SoMultiField<SbVec3i32> {
    SO_MFIELD(SoMFVec3i32, SbVec3i32)
};
