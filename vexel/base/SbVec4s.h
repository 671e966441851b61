#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of four short components. */
class VEXEL_API SbVec4s : public vexel::detail::VecT<SbVec4s, short, 4> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec4s> : vexel::detail::VecHash<SbVec4s> {
};
