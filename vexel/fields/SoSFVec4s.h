#pragma once

#include <vexel/base/SbVec4s.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec4s>;

/** A vector of four 16-bit numbers. */
class VEXEL_API SoSFVec4s : public SoSingleField<SbVec4s> {
    SO_FIELD(SoSFVec4s, SbVec4s)
};
