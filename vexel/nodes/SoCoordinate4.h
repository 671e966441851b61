#pragma once

#include <vexel/fields/SoMFVec4f.h>
#include <vexel/nodes/SoNode.h>

/** Points with a weight for the shapes behind; the place of a point is x, y, z divided by w. */
class VEXEL_API SoCoordinate4 : public SoNode {
    SO_NODE(SoCoordinate4, SoNode)
public:
    SoMFVec4f point{this, "point", SbVec4f(0, 0, 0, 1)};

    void doAction(SoAction& action) override;
};
