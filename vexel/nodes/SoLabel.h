#pragma once

#include <vexel/fields/SoSFName.h>
#include <vexel/nodes/SoNode.h>

/** A mark in the graph that a program can find again. */
class VEXEL_API SoLabel : public SoNode {
    SO_NODE(SoLabel, SoNode)
public:
    SoSFName label{this, "label", SbName("<Undefined label>")};

    bool affectsState() const override { return false; }
};
