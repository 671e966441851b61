#pragma once

#include <vexel/base/SbTime.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbTime>;

/** A time or duration in seconds. */
class VEXEL_API SoSFTime : public SoSingleField<SbTime> {
    SO_FIELD(SoSFTime, SbTime)
};
