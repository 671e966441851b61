#pragma once

#include <vexel/base/SbVec4i32.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec4i32>;

/** A vector of four 32-bit numbers. */
class VEXEL_API SoSFVec4i32 : public SoSingleField<SbVec4i32> {
    SO_FIELD(SoSFVec4i32, SbVec4i32)
};
