#pragma once

#include <vexel/base/SbColorRGBA.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbColorRGBA>;

/** A list of colours with opacity, components from 0 to 1. */
class VEXEL_API SoMFColorRGBA : public SoMultiField<SbColorRGBA> {
    SO_MFIELD(SoMFColorRGBA, SbColorRGBA)
};
