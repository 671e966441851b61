#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of three float components. */
class VEXEL_API SbVec3f : public vexel::detail::VecT<SbVec3f, float, 3> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec3f> : vexel::detail::VecHash<SbVec3f> {
};
