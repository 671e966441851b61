#pragma once

#include <vexel/base/SbVec4s.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec4s>;

/** A list of vectors of four 16-bit numbers. */
class VEXEL_API SoMFVec4s : public SoMultiField<SbVec4s> {
    SO_MFIELD(SoMFVec4s, SbVec4s)
};
