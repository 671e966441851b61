#pragma once

#include <vexel/fields/SoMFColor.h>
#include <vexel/nodes/SoInstanceParameter.h>

/** Diffuse colours of the instances. */
class VEXEL_API SoInstanceColor : public SoInstanceParameter {
    SO_NODE(SoInstanceColor, SoInstanceParameter)
public:
    SoMFColor diffuseColor{this, "diffuseColor"};

    int getNumInstances() const override { return diffuseColor.getNum(); }
    void applyInstance(SoAction& action, int instance) const override;
};
