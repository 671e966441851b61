#pragma once

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<float>;

/** A number in single precision. */
class VEXEL_API SoSFFloat : public SoSingleField<float> {
    SO_FIELD(SoSFFloat, float)
};
