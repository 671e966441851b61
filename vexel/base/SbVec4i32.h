#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of four 32-bit integer components. */
class VEXEL_API SbVec4i32 : public vexel::detail::VecT<SbVec4i32, std::int32_t, 4> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec4i32> : vexel::detail::VecHash<SbVec4i32> {
};
