#pragma once

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<bool>;

/** A list of truth values. */
class VEXEL_API SoMFBool : public SoMultiField<bool> {
    SO_MFIELD(SoMFBool, bool)
};
