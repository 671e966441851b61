#pragma once

#include <vexel/base/SbBox2i32.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox2i32>;

/** A box in two dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox2i32 : public SoSingleField<SbBox2i32> {
    SO_FIELD(SoSFBox2i32, SbBox2i32)
};
