#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoNode;

/** A node, or none. */
class VEXEL_API SoSFNode : public SoSingleReferenceField {
    SO_REFERENCE_FIELD(SoSFNode, SoNode)
};
