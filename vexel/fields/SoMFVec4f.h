#pragma once

#include <vexel/base/SbVec4f.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec4f>;

/** A list of vectors of four numbers in single precision. */
class VEXEL_API SoMFVec4f : public SoMultiField<SbVec4f> {
    SO_MFIELD(SoMFVec4f, SbVec4f)
};
