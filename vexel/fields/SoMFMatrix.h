#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<SbMatrix>;

/** A list of 4 x 4 matrices; their text is row by row. */
class VEXEL_API SoMFMatrix : public SoMultiField<SbMatrix> {
    SO_MFIELD(SoMFMatrix, SbMatrix)
};
