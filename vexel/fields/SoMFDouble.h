#pragma once

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<double>;

/** A list of numbers in double precision. */
class VEXEL_API SoMFDouble : public SoMultiField<double> {
    SO_MFIELD(SoMFDouble, double)
};
