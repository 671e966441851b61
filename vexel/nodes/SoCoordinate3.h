#pragma once

#include <vexel/fields/SoMFVec3f.h>
#include <vexel/nodes/SoNode.h>

/** Points for the shapes behind. */
class VEXEL_API SoCoordinate3 : public SoNode {
    SO_NODE(SoCoordinate3, SoNode)
public:
    SoMFVec3f point{this, "point", SbVec3f(0, 0, 0)};

    void doAction(SoAction& action) override;
};
