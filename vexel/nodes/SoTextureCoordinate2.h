#pragma once

#include <vexel/fields/SoMFVec2f.h>
#include <vexel/nodes/SoNode.h>

/** Places in a texture for the vertices of the shapes behind. */
class VEXEL_API SoTextureCoordinate2 : public SoNode {
    SO_NODE(SoTextureCoordinate2, SoNode)
public:
    /** 0 to 1 from left to right and from bottom to top. */
    SoMFVec2f point{this, "point"};

    void doAction(SoAction& action) override;
};
