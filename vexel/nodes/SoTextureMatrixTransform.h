#pragma once

#include <vexel/fields/SoSFMatrix.h>
#include <vexel/nodes/SoNode.h>

/** Moves texture coordinates by a matrix. */
class VEXEL_API SoTextureMatrixTransform : public SoNode {
    SO_NODE(SoTextureMatrixTransform, SoNode)
public:
    SoSFMatrix matrix{this, "matrix"};

    void doAction(SoAction& action) override;
};
