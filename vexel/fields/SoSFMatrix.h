#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<SbMatrix>;

/** A 4 x 4 matrix; its text is row by row. */
class VEXEL_API SoSFMatrix : public SoSingleField<SbMatrix> {
    SO_FIELD(SoSFMatrix, SbMatrix)
};
