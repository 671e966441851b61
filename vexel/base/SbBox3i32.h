#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec3i32.h>
#include <vexel/base/detail/BoxT.h>

/** Axis-aligned box of 32-bit integers. */
class VEXEL_API SbBox3i32 : public vexel::detail::BoxT<SbBox3i32, SbVec3i32, SbVec3f> {
public:
    using BoxT::BoxT;

    /** 0 when the box is empty or flat. */
    float getVolume() const noexcept { return static_cast<float>(edgeProduct()); }
};
