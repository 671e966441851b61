#pragma once

#include <vexel/base/SbBox3i32.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox3i32>;

/** A box in three dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox3i32 : public SoSingleField<SbBox3i32> {
    SO_FIELD(SoSFBox3i32, SbBox3i32)
};
