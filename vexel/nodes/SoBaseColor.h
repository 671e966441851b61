#pragma once

#include <vexel/fields/SoMFColor.h>
#include <vexel/nodes/SoNode.h>

/** Diffuse colours alone; all else of the material stays. */
class VEXEL_API SoBaseColor : public SoNode {
    SO_NODE(SoBaseColor, SoNode)
public:
    SoMFColor rgb{this, "rgb", SbColor(0.8f, 0.8f, 0.8f)};

    void doAction(SoAction& action) override;
};
