#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec3s.h>
#include <vexel/base/detail/BoxT.h>

/** Axis-aligned box of short integers. */
class VEXEL_API SbBox3s : public vexel::detail::BoxT<SbBox3s, SbVec3s, SbVec3f> {
public:
    using BoxT::BoxT;

    /** 0 when the box is empty or flat. */
    float getVolume() const noexcept { return static_cast<float>(edgeProduct()); }
};
