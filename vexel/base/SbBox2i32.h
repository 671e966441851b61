#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2i32.h>
#include <vexel/base/detail/BoxT.h>

/** Axis-aligned rectangle of 32-bit integers. */
class VEXEL_API SbBox2i32 : public vexel::detail::BoxT<SbBox2i32, SbVec2i32, SbVec2f> {
public:
    using BoxT::BoxT;
};
