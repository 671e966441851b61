#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/base/detail/BoxT.h>

/** Axis-aligned rectangle of short integers. */
class VEXEL_API SbBox2s : public vexel::detail::BoxT<SbBox2s, SbVec2s, SbVec2f> {
public:
    using BoxT::BoxT;
};
