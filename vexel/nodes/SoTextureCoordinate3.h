#pragma once

#include <vexel/fields/SoMFVec3f.h>
#include <vexel/nodes/SoNode.h>

/** Places in a volume texture for the vertices of the shapes behind. */
class VEXEL_API SoTextureCoordinate3 : public SoNode {
    SO_NODE(SoTextureCoordinate3, SoNode)
public:
    SoMFVec3f point{this, "point"};

    void doAction(SoAction& action) override;
};
