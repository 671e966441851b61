#pragma once

#include <vexel/fields/SoSFMatrix.h>
#include <vexel/nodes/SoTransformation.h>

/** Places shapes by a matrix. */
class VEXEL_API SoMatrixTransform : public SoTransformation {
    SO_NODE(SoMatrixTransform, SoTransformation)
public:
    SoSFMatrix matrix{this, "matrix"};

    SbMatrix getMatrix(const SoState&) const override
    {
        return matrix.isIgnored() ? SbMatrix::identity() : matrix.getValue();
    }
};
