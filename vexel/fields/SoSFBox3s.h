#pragma once

#include <vexel/base/SbBox3s.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox3s>;

/** A box in three dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox3s : public SoSingleField<SbBox3s> {
    SO_FIELD(SoSFBox3s, SbBox3s)
};
