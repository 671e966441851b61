#pragma once

#include <vexel/base/detail/VecT.h>

/** Vector or point of four float components. */
class VEXEL_API SbVec4f : public vexel::detail::VecT<SbVec4f, float, 4> {
public:
    using VecT::VecT;
};

template <>
struct std::hash<SbVec4f> : vexel::detail::VecHash<SbVec4f> {
};
