#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/base/detail/BoxT.h>

class SbMatrix;

/** Axis-aligned box of floats. */
class VEXEL_API SbBox3f : public vexel::detail::BoxT<SbBox3f, SbVec3f, SbVec3f> {
public:
    using BoxT::BoxT;

    /** 0 when the box is empty or flat. */
    float getVolume() const noexcept { return static_cast<float>(edgeProduct()); }

    /** Becomes the smallest box around the moved corners of the box; an empty box stays empty. */
    void transform(const SbMatrix& matrix) noexcept;
};
