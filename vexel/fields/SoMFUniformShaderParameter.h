#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoUniformShaderParameter;

/** The parameters of a shader. */
class VEXEL_API SoMFUniformShaderParameter : public SoMultiReferenceField {
    SO_REFERENCE_MFIELD(SoMFUniformShaderParameter, SoUniformShaderParameter)
};
