#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoGroup.h>

/** Shows its children again and again, at the points of a grid. Switches below that inherit get the copy's number. */
class VEXEL_API SoArray : public SoGroup {
    SO_NODE(SoArray, SoGroup)
public:
    enum Origin { FIRST, CENTER, LAST };
    static constexpr SoEnumEntry Origin_names[] = {{"FIRST", FIRST}, {"CENTER", CENTER}, {"LAST", LAST}};

    /** Copies in each direction; at most a million in all are shown. */
    SoSFShort numElements1{this, "numElements1", 1};
    SoSFShort numElements2{this, "numElements2", 1};
    SoSFShort numElements3{this, "numElements3", 1};
    /** From one copy to the next. */
    SoSFVec3f separation1{this, "separation1", SbVec3f(1, 0, 0)};
    SoSFVec3f separation2{this, "separation2", SbVec3f(0, 1, 0)};
    SoSFVec3f separation3{this, "separation3", SbVec3f(0, 0, 1)};
    /** What of the grid is at the origin. */
    SoSFEnum origin{this, "origin", FIRST, Origin_names};

    void doAction(SoAction& action) override;
    bool affectsState() const override { return false; }
};
