#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of three short components. */
class VEXEL_API SbVec3s : public vexel::detail::VecT<SbVec3s, short, 3> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec3s> : vexel::detail::VecHash<SbVec3s> {
};
