#pragma once

#include <vexel/fields/SoField.h>

/** Base of the fields that hold one value. */
class VEXEL_API SoSField : public SoField {
public:
    static SoType getClassTypeId();

protected:
    using SoField::SoField;
};
