#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of two short components. */
class VEXEL_API SbVec2s : public vexel::detail::VecT<SbVec2s, short, 2> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec2s> : vexel::detail::VecHash<SbVec2s> {
};
