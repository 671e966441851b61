#pragma once

#include <vexel/base/SbName.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbName>;

/** A name. */
class VEXEL_API SoSFName : public SoSingleField<SbName> {
    SO_FIELD(SoSFName, SbName)
};
