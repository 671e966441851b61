#pragma once

#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFPlane.h>
#include <vexel/nodes/SoNode.h>

/** Cuts off what lies behind a plane. */
class VEXEL_API SoClipPlane : public SoNode {
    SO_NODE(SoClipPlane, SoNode)
public:
    /** What lies on the side that the normal points to is kept. */
    SoSFPlane plane{this, "plane", SbPlane(SbVec3f(1, 0, 0), 0)};
    SoSFBool on{this, "on", true};

    void doAction(SoAction& action) override;
};
