#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of two double components. */
class VEXEL_API SbVec2d : public vexel::detail::VecT<SbVec2d, double, 2> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec2d> : vexel::detail::VecHash<SbVec2d> {
};
