#pragma once

#include <vexel/nodes/SoGroup.h>

/** A group that keeps the transforms of its children to itself, and nothing else. */
class VEXEL_API SoTransformSeparator : public SoGroup {
    SO_NODE(SoTransformSeparator, SoGroup)
public:
    void doAction(SoAction& action) override;
};
