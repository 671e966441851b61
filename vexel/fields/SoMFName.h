#pragma once

#include <vexel/base/SbName.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbName>;

/** A list of names. */
class VEXEL_API SoMFName : public SoMultiField<SbName> {
    SO_MFIELD(SoMFName, SbName)
};
