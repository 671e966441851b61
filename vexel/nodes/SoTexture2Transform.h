#pragma once

#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFVec2f.h>
#include <vexel/nodes/SoNode.h>

/** Moves, turns and scales texture coordinates. */
class VEXEL_API SoTexture2Transform : public SoNode {
    SO_NODE(SoTexture2Transform, SoNode)
public:
    SoSFVec2f translation{this, "translation", SbVec2f(0, 0)};
    /** In radians. */
    SoSFFloat rotation{this, "rotation", 0};
    SoSFVec2f scaleFactor{this, "scaleFactor", SbVec2f(1, 1)};
    /** What rotation and scale leave in place. */
    SoSFVec2f center{this, "center", SbVec2f(0, 0)};

    void doAction(SoAction& action) override;
};
