#pragma once

#include <vexel/base/SbVec2s.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbVec2s>;

/** A vector of two 16-bit numbers. */
class VEXEL_API SoSFVec2s : public SoSingleField<SbVec2s> {
    SO_FIELD(SoSFVec2s, SbVec2s)
};
