#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/base/detail/BoxT.h>

/** Axis-aligned rectangle of floats. */
class VEXEL_API SbBox2f : public vexel::detail::BoxT<SbBox2f, SbVec2f, SbVec2f> {
public:
    using BoxT::BoxT;
};
