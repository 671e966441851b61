#pragma once

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<bool>;

/** A truth value. */
class VEXEL_API SoSFBool : public SoSingleField<bool> {
    SO_FIELD(SoSFBool, bool)
};
