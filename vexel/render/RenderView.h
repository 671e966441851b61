#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <vexel/base/SbMatrix.h>

namespace vexel {

/** Rectangle of the target in pixels, from its lower left corner. */
struct RenderViewport {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool contains(float atX, float atY) const
    {
        return atX >= static_cast<float>(x) && atX <= static_cast<float>(x + width) && atY >= static_cast<float>(y) &&
               atY <= static_cast<float>(y + height);
    }
};

/** What surrounds a picture that is smaller than the place for it. */
struct RenderFrame {
    enum class Kind : std::uint8_t {
        None, ///< the background
        Fill, ///< grey
        Line  ///< the background, with a grey line of one pixel inside the picture's border
    };

    Kind kind = Kind::None;
    RenderViewport whole; ///< the place for the picture
};

/** A camera looking at a part of the target. Both matrices multiply row vectors; the projection is the usual one of
    OpenGL, depth from -1 to 1. */
struct RenderView {
    SbMatrix view;
    SbMatrix projection;
    RenderViewport viewport;
    std::optional<RenderFrame> frame; ///< none: the viewport is all that is drawn into
    /** The part of the camera's picture that fills the viewport: left, bottom, right, top. Less than all when a picture
        is drawn in tiles. */
    std::array<float, 4> window{0, 0, 1, 1};
};

} // namespace vexel
