#pragma once

#include <vexel/fields/detail/ReferenceField.h>

class SoNode;

/** A list of nodes. */
class VEXEL_API SoMFNode : public SoMultiReferenceField {
    SO_REFERENCE_MFIELD(SoMFNode, SoNode)
};
