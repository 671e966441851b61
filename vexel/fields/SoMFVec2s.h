#pragma once

#include <vexel/base/SbVec2s.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec2s>;

/** A list of vectors of two 16-bit numbers. */
class VEXEL_API SoMFVec2s : public SoMultiField<SbVec2s> {
    SO_MFIELD(SoMFVec2s, SbVec2s)
};
