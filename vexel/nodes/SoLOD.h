#pragma once

#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoGroup.h>

class SoState;

/** A group that shows the child that is right for the distance from the viewer: the first one close by. */
class VEXEL_API SoLOD : public SoGroup {
    SO_NODE(SoLOD, SoGroup)
public:
    /** Distances at which each child gives way to the next, in ascending order. */
    SoMFFloat range{this, "range"};
    /** From where the distance is measured. */
    SoSFVec3f center{this, "center", SbVec3f(0, 0, 0)};

    /** The child that would be shown in this state; -1 without children. */
    int whichToTraverse(const SoState& state) const;
    void doAction(SoAction& action) override;
};
