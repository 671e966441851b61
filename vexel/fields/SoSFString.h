#pragma once

#include <vexel/base/SbString.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbString>;

/** A text. */
class VEXEL_API SoSFString : public SoSingleField<SbString> {
    SO_FIELD(SoSFString, SbString)
};
