#pragma once

#include <vexel/nodes/SoNode.h>

/** Base of the values of which each instance of a graph has one of its own. */
class VEXEL_API SoInstanceParameter : public SoNode {
    SO_NODE_ABSTRACT(SoInstanceParameter, SoNode)
public:
    /** How many instances have a value. */
    virtual int getNumInstances() const = 0;
    /** Brings the value of one instance into the state; beyond the end the last one counts. */
    virtual void applyInstance(SoAction& action, int instance) const = 0;

protected:
    SoInstanceParameter() = default;
};
