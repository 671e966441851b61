#pragma once

#include <vexel/fields/SoSFPath.h>
#include <vexel/nodes/SoGroup.h>

/** A group whose children are traversed only when the way of the action leads along a path. */
class VEXEL_API SoPathSwitch : public SoGroup {
    SO_NODE(SoPathSwitch, SoGroup)
public:
    /** The end of the way that leads to this node, by choice without the node itself; NULL fits no way. The
     * path holds its nodes; one that holds this switch keeps it alive until the field is emptied. */
    SoSFPath path{this, "path"};

    void doAction(SoAction& action) override;
};
