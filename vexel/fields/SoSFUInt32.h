#pragma once

#include <cstdint>

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<std::uint32_t>;

/** A 32-bit number without sign. */
class VEXEL_API SoSFUInt32 : public SoSingleField<std::uint32_t> {
    SO_FIELD(SoSFUInt32, std::uint32_t)
};
