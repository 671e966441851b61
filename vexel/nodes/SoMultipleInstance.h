#pragma once

#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoGroup.h>

/** Shows its children many times, each time with values of its own that parameters give. */
class VEXEL_API SoMultipleInstance : public SoGroup {
    SO_NODE(SoMultipleInstance, SoGroup)
public:
    /** -1 for as many as the longest parameter has values; at most a million are shown. */
    SoSFInt32 numInstances{this, "numInstances", -1};
    /** InstanceTransform, InstanceColor. */
    SoMFInstanceParameter instanceParameters{this, "instanceParameters"};

    void doAction(SoAction& action) override;
    bool affectsState() const override { return false; }

private:
    int countInstances() const;
};
