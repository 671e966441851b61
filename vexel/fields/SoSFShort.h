#pragma once

#include <cstdint>

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<std::int16_t>;

/** A 16-bit number. */
class VEXEL_API SoSFShort : public SoSingleField<std::int16_t> {
    SO_FIELD(SoSFShort, std::int16_t)
};
