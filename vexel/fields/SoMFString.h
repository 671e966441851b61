#pragma once

#include <vexel/base/SbString.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbString>;

/** A list of texts. */
class VEXEL_API SoMFString : public SoMultiField<SbString> {
    SO_MFIELD(SoMFString, SbString)
};
