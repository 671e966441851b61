#pragma once

#include <vexel/base/SbVec3s.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec3s>;

/** A list of vectors of three 16-bit numbers. */
class VEXEL_API SoMFVec3s : public SoMultiField<SbVec3s> {
    SO_MFIELD(SoMFVec3s, SbVec3s)
};
