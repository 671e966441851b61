#pragma once

#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoNode.h>

/** A text that travels with the scene. */
class VEXEL_API SoInfo : public SoNode {
    SO_NODE(SoInfo, SoNode)
public:
    SoSFString string{this, "string", SbString("<Undefined info>")};

    bool affectsState() const override { return false; }
};
