#pragma once

#include <vexel/fields/SoMFMatrix.h>
#include <vexel/nodes/SoInstanceParameter.h>

/** Places of the instances. */
class VEXEL_API SoInstanceTransform : public SoInstanceParameter {
    SO_NODE(SoInstanceTransform, SoInstanceParameter)
public:
    SoMFMatrix matrix{this, "matrix"};

    int getNumInstances() const override { return matrix.getNum(); }
    void applyInstance(SoAction& action, int instance) const override;
};
