#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoEngine;

/** An engine, or none. */
class VEXEL_API SoSFEngine : public SoSingleReferenceField {
    SO_REFERENCE_FIELD(SoSFEngine, SoEngine)
};
