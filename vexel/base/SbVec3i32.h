#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of three 32-bit integer components. */
class VEXEL_API SbVec3i32 : public vexel::detail::VecT<SbVec3i32, std::int32_t, 3> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec3i32> : vexel::detail::VecHash<SbVec3i32> {
};
