#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbVec3f>;

/** A list of vectors of three numbers in single precision. */
class VEXEL_API SoMFVec3f : public SoMultiField<SbVec3f> {
    SO_MFIELD(SoMFVec3f, SbVec3f)
};
