#pragma once

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoNode.h>

/** Places in a colour table, for windows that have one. */
class VEXEL_API SoColorIndex : public SoNode {
    SO_NODE(SoColorIndex, SoNode)
public:
    SoMFInt32 index{this, "index", 1};

    void doAction(SoAction& action) override;
};
