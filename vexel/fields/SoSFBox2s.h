#pragma once

#include <vexel/base/SbBox2s.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox2s>;

/** A box in two dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox2s : public SoSingleField<SbBox2s> {
    SO_FIELD(SoSFBox2s, SbBox2s)
};
