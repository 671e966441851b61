#pragma once

#include <vexel/fields/SoMFMatrix.h>
#include <vexel/nodes/SoGroup.h>

/** Shows its children once under each matrix. Switches below that inherit get the copy's number. */
class VEXEL_API SoMultipleCopy : public SoGroup {
    SO_NODE(SoMultipleCopy, SoGroup)
public:
    SoMFMatrix matrix{this, "matrix", SbMatrix()};

    void doAction(SoAction& action) override;
    bool affectsState() const override { return false; }
};
