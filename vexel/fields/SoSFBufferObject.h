#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoBufferObject;

/** A buffer object, or none. */
class VEXEL_API SoSFBufferObject : public SoSingleReferenceField {
    SO_REFERENCE_FIELD(SoSFBufferObject, SoBufferObject)
};
