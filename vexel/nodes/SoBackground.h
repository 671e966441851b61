#pragma once

#include <vexel/nodes/SoNode.h>

/** Base of what fills the viewport behind the scene. */
class VEXEL_API SoBackground : public SoNode {
    SO_NODE_ABSTRACT(SoBackground, SoNode)
public:
    bool affectsState() const override { return false; }

protected:
    SoBackground() = default;
};
