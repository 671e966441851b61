#pragma once

#include <vexel/base/SbVec2i32.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec2i32>;

/** A vector of two 32-bit numbers. */
class VEXEL_API SoSFVec2i32 : public SoSingleField<SbVec2i32> {
    SO_FIELD(SoSFVec2i32, SbVec2i32)
};
