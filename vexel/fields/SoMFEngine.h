#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoEngine;

/** A list of engines. */
class VEXEL_API SoMFEngine : public SoMultiReferenceField {
    SO_REFERENCE_MFIELD(SoMFEngine, SoEngine)
};
