#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoFieldContainer;

/** Any object made of fields, or none. */
class VEXEL_API SoSFFieldContainer : public SoSingleReferenceField {
    SO_REFERENCE_FIELD(SoSFFieldContainer, SoFieldContainer)
};
