#pragma once

#include <array>

#include <vexel/base/SbMatrix.h>

namespace vexel {

/** Rectangle of the target in pixels, from its lower left corner. */
struct RenderViewport {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/** A camera looking at a part of the target. Both matrices multiply row vectors; the projection is the usual one of
    OpenGL, depth from -1 to 1. */
struct RenderView {
    SbMatrix view;
    SbMatrix projection;
    RenderViewport viewport;
    /** The part of the camera's picture that fills the viewport: left, bottom, right, top. Less than all when a picture
        is drawn in tiles. */
    std::array<float, 4> window{0, 0, 1, 1};
};

} // namespace vexel
