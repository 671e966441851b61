#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec2f>;

/** A list of vectors of two numbers in single precision. */
class VEXEL_API SoMFVec2f : public SoMultiField<SbVec2f> {
    SO_MFIELD(SoMFVec2f, SbVec2f)
};
