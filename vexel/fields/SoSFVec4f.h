#pragma once

#include <vexel/base/SbVec4f.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec4f>;

/** A vector of four numbers in single precision. */
class VEXEL_API SoSFVec4f : public SoSingleField<SbVec4f> {
    SO_FIELD(SoSFVec4f, SbVec4f)
};
