#pragma once

#include <cstdint>

#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<std::int32_t>;

/** A list of 32-bit numbers. */
class VEXEL_API SoMFInt32 : public SoMultiField<std::int32_t> {
    SO_MFIELD(SoMFInt32, std::int32_t)
};
