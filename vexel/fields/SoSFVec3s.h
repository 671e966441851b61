#pragma once

#include <vexel/base/SbVec3s.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec3s>;

/** A vector of three 16-bit numbers. */
class VEXEL_API SoSFVec3s : public SoSingleField<SbVec3s> {
    SO_FIELD(SoSFVec3s, SbVec3s)
};
