#pragma once

#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoBindingNames.h>
#include <vexel/nodes/SoNode.h>

/** How the materials in force are given to the parts, faces and vertices of shapes. */
class VEXEL_API SoMaterialBinding : public SoNode, public SoBindingNames<0> {
    SO_NODE(SoMaterialBinding, SoNode)
public:
    SoSFEnum value{this, "value", OVERALL, Binding_names};

    void doAction(SoAction& action) override;
};
