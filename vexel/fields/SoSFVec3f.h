#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec3f>;

/** A vector of three numbers in single precision. */
class VEXEL_API SoSFVec3f : public SoSingleField<SbVec3f> {
    SO_FIELD(SoSFVec3f, SbVec3f)
};
