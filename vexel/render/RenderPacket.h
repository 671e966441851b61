#pragma once

#include <cstdint>
#include <memory>

#include <vexel/base/SbMatrix.h>
#include <vexel/render/RenderMaterial.h>
#include <vexel/render/RenderState.h>

namespace vexel {

class RenderGeometry;

/** One drawing of one shape: what, how and where. */
struct RenderPacket {
    std::shared_ptr<const RenderGeometry> geometry;
    RenderState state;
    RenderMaterial material;
    SbMatrix matrix;       ///< from the shape's space to the world; affine
    std::uint64_t tag = 0; ///< the caller's own mark
};

} // namespace vexel
