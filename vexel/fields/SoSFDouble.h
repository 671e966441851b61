#pragma once

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<double>;

/** A number in double precision. */
class VEXEL_API SoSFDouble : public SoSingleField<double> {
    SO_FIELD(SoSFDouble, double)
};
