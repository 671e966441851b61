#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of two float components. */
class VEXEL_API SbVec2f : public vexel::detail::VecT<SbVec2f, float, 2> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec2f> : vexel::detail::VecHash<SbVec2f> {
};
