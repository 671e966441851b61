#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of two 32-bit integer components. */
class VEXEL_API SbVec2i32 : public vexel::detail::VecT<SbVec2i32, std::int32_t, 2> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec2i32> : vexel::detail::VecHash<SbVec2i32> {
};
