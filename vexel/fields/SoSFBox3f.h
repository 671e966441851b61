#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox3f>;

/** A box in three dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox3f : public SoSingleField<SbBox3f> {
    SO_FIELD(SoSFBox3f, SbBox3f)
};
