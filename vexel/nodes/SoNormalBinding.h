#pragma once

#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoBindingNames.h>
#include <vexel/nodes/SoNode.h>

/** How the normals in force are given to the parts, faces and vertices of shapes. */
class VEXEL_API SoNormalBinding : public SoNode, public SoBindingNames<6> {
    SO_NODE(SoNormalBinding, SoNode)
public:
    SoSFEnum value{this, "value", PER_VERTEX_INDEXED, Binding_names};

    void doAction(SoAction& action) override;
};
