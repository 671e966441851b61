#pragma once

#include <cstdint>

#include <vexel/fields/detail/SingleField.h>

extern template class SoSingleField<std::int32_t>;

/** A 32-bit number. */
class VEXEL_API SoSFInt32 : public SoSingleField<std::int32_t> {
    SO_FIELD(SoSFInt32, std::int32_t)
};
