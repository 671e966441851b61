#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of three double components. */
class VEXEL_API SbVec3d : public vexel::detail::VecT<SbVec3d, double, 3> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec3d> : vexel::detail::VecHash<SbVec3d> {
};
