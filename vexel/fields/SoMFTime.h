#pragma once

#include <vexel/base/SbTime.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbTime>;

/** A list of times or durations in seconds. */
class VEXEL_API SoMFTime : public SoMultiField<SbTime> {
    SO_MFIELD(SoMFTime, SbTime)
};
