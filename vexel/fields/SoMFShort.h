#pragma once

#include <cstdint>

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<std::int16_t>;

/** A list of 16-bit numbers. */
class VEXEL_API SoMFShort : public SoMultiField<std::int16_t> {
    SO_MFIELD(SoMFShort, std::int16_t)
};
