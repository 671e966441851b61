#pragma once

#include <cstdint>

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<std::uint32_t>;

/** A list of 32-bit numbers without sign. */
class VEXEL_API SoMFUInt32 : public SoMultiField<std::uint32_t> {
    SO_MFIELD(SoMFUInt32, std::uint32_t)
};
