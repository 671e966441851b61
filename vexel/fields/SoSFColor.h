#pragma once

#include <vexel/base/SbColor.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbColor>;

/** A colour: red, green and blue from 0 to 1. */
class VEXEL_API SoSFColor : public SoSingleField<SbColor> {
    SO_FIELD(SoSFColor, SbColor)
};
