#pragma once

#include <cstdint>

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<std::uint16_t>;

/** A 16-bit number without sign. */
class VEXEL_API SoSFUShort : public SoSingleField<std::uint16_t> {
    SO_FIELD(SoSFUShort, std::uint16_t)
};
