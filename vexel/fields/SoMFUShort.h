#pragma once

#include <cstdint>

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<std::uint16_t>;

/** A list of 16-bit numbers without sign. */
class VEXEL_API SoMFUShort : public SoMultiField<std::uint16_t> {
    SO_MFIELD(SoMFUShort, std::uint16_t)
};
