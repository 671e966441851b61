#pragma once

#include <vexel/fields/SoMFFloat.h>
#include <vexel/nodes/SoGroup.h>

class SoState;

/** A group that shows the child that is right for the size on the screen: the first one for the largest. */
class VEXEL_API SoLevelOfDetail : public SoGroup {
    SO_NODE(SoLevelOfDetail, SoGroup)
public:
    /** Areas of the rectangle about the first child, in pixels, below which each child gives way to the next. */
    SoMFFloat screenArea{this, "screenArea", 0.0f};

    /** The child that would be shown in this state; -1 without children. */
    int whichToTraverse(const SoState& state) const;
    void doAction(SoAction& action) override;
};
