#pragma once

#include <vexel/nodes/SoShaderParameter.h>

/** Base of the values that are the same for everything a program draws. */
class VEXEL_API SoUniformShaderParameter : public SoShaderParameter {
    SO_NODE_ABSTRACT(SoUniformShaderParameter, SoShaderParameter)
protected:
    SoUniformShaderParameter() = default;
};
