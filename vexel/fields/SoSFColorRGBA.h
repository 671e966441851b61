#pragma once

#include <vexel/base/SbColorRGBA.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbColorRGBA>;

/** A colour with opacity, components from 0 to 1. */
class VEXEL_API SoSFColorRGBA : public SoSingleField<SbColorRGBA> {
    SO_FIELD(SoSFColorRGBA, SbColorRGBA)
};
