#include <vexel/fields/SoBufferObject.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoMFUniformShaderParameter.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFFieldContainer.h>
#include <vexel/fields/detail/FieldClass.h>
#include <vexel/nodes/SoInstanceParameter.h>
#include <vexel/nodes/SoUniformShaderParameter.h>

SO_REFERENCE_FIELD_SOURCE(SoSFBufferObject, SoBufferObject)
SO_REFERENCE_FIELD_SOURCE(SoSFFieldContainer, SoFieldContainer)
SO_REFERENCE_MFIELD_SOURCE(SoMFUniformShaderParameter, SoUniformShaderParameter)
SO_REFERENCE_MFIELD_SOURCE(SoMFInstanceParameter, SoInstanceParameter)
