#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoPath;

/** A list of paths. */
class VEXEL_API SoMFPath : public SoMultiReferenceField {
    SO_REFERENCE_MFIELD(SoMFPath, SoPath)
};
