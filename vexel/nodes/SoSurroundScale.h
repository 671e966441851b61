#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoTransformation.h>

/**
 * Makes what is behind it, built about the origin with a half size of 1, surround the box of a node above.
 * Both numbers count upwards along the way to this node.
 */
class VEXEL_API SoSurroundScale : public SoTransformation {
    SO_NODE(SoSurroundScale, SoTransformation)
public:
    /** How far up the node is whose box is surrounded; 0 for none. */
    SoSFInt32 numNodesUpToContainer{this, "numNodesUpToContainer", 0};
    /** How far up the node is that does not count for the box, such as a dragger itself; 0 for none. */
    SoSFInt32 numNodesUpToReset{this, "numNodesUpToReset", 0};

    /** What doAction() found last. */
    SbMatrix getMatrix(const SoState&) const override { return m_matrix; }
    void doAction(SoAction& action) override;

private:
    SbMatrix surround(const SoAction& action) const;

    SbMatrix m_matrix;
    bool m_isMeasuring = false;
};
