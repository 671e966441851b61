#pragma once

#include <vexel/base/SbBox2f.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbBox2f>;

/** A box in two dimensions; its text is the minimum and the maximum corner. */
class VEXEL_API SoSFBox2f : public SoSingleField<SbBox2f> {
    SO_FIELD(SoSFBox2f, SbBox2f)
};
