#pragma once

#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoNode.h>

/** Base of the values that a shader program receives under a name. */
class VEXEL_API SoShaderParameter : public SoNode {
    SO_NODE_ABSTRACT(SoShaderParameter, SoNode)
public:
    /** The name in the shader's source. */
    SoSFString name{this, "name"};
    /** Location in the program; counts when the name is empty. */
    SoSFInt32 identifier{this, "identifier", 0};

protected:
    SoShaderParameter() = default;
};
