#pragma once

#include <vexel/nodes/SoNode.h>

class SbMatrix;
class SoState;

/** Base of the nodes that place the shapes behind them. */
class VEXEL_API SoTransformation : public SoNode {
    SO_NODE_ABSTRACT(SoTransformation, SoNode)
public:
    /** The matrix from the space behind the node to the space before it. */
    virtual SbMatrix getMatrix(const SoState& state) const = 0;
    void doAction(SoAction& action) override;

protected:
    SoTransformation() = default;
};
