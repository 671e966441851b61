#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec2f>;

/** A vector of two numbers in single precision. */
class VEXEL_API SoSFVec2f : public SoSingleField<SbVec2f> {
    SO_FIELD(SoSFVec2f, SbVec2f)
};
