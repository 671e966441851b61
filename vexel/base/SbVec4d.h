#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of four double components. */
class VEXEL_API SbVec4d : public vexel::detail::VecT<SbVec4d, double, 4> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec4d> : vexel::detail::VecHash<SbVec4d> {
};
