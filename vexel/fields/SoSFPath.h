#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoPath;

/** A path, or none. */
class VEXEL_API SoSFPath : public SoSingleReferenceField {
    SO_REFERENCE_FIELD(SoSFPath, SoPath)
};
