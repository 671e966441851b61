#pragma once

#include <vexel/base/SbColor.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbColor>;

/** A list of colours: red, green and blue from 0 to 1. */
class VEXEL_API SoMFColor : public SoMultiField<SbColor> {
    SO_MFIELD(SoMFColor, SbColor)
};
