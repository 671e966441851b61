#pragma once

#include <vexel/base/SbVec3i32.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec3i32>;

/** A vector of three 32-bit numbers. */
class VEXEL_API SoSFVec3i32 : public SoSingleField<SbVec3i32> {
    SO_FIELD(SoSFVec3i32, SbVec3i32)
};
