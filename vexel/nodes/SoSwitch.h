#pragma once

#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoGroup.h>

/** Values of whichChild that are no child's number. */
enum SoSwitchChoice { SO_SWITCH_NONE = -1, SO_SWITCH_INHERIT = -2, SO_SWITCH_ALL = -3 };

/** A group of which one child is traversed. */
class VEXEL_API SoSwitch : public SoGroup {
    SO_NODE(SoSwitch, SoGroup)
public:
    /** Number of the child; SO_SWITCH_NONE, SO_SWITCH_ALL, or SO_SWITCH_INHERIT for the choice of the switch, or the
     * number of the copy, above. */
    SoSFInt32 whichChild{this, "whichChild", SO_SWITCH_NONE};

    void doAction(SoAction& action) override;
    bool affectsState() const override;
};
