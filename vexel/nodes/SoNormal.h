#pragma once

#include <vexel/fields/SoMFVec3f.h>
#include <vexel/nodes/SoNode.h>

/** Normals for the shapes behind. */
class VEXEL_API SoNormal : public SoNode {
    SO_NODE(SoNormal, SoNode)
public:
    SoMFVec3f vector{this, "vector"};

    void doAction(SoAction& action) override;
};
