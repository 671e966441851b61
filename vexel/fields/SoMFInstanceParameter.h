#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoInstanceParameter;

/** The values that tell the instances of one graph from each other. */
class VEXEL_API SoMFInstanceParameter : public SoMultiReferenceField {
    SO_REFERENCE_MFIELD(SoMFInstanceParameter, SoInstanceParameter)
};
