#pragma once

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<float>;

/** A list of numbers in single precision. */
class VEXEL_API SoMFFloat : public SoMultiField<float> {
    SO_MFIELD(SoMFFloat, float)
};
