#pragma once

#include <cstdint>
#include <memory>

#include <vexel/base/SbVec4f.h>

namespace vexel {

class RenderImage;

/** What a viewport is filled with before anything else is drawn. Colours are red, green, blue, alpha. */
struct RenderBackground {
    enum class Kind : std::uint8_t {
        None, ///< keeps what the target shows
        Solid,
        Gradient,  ///< vertical, `color` at the bottom, `topColor` at the top
        Stretched, ///< the image fills the viewport, over `color`
        Centered,  ///< the image at its own size, over `color`
        Tiled      ///< the image again and again from the lower left corner
    };

    Kind kind = Kind::Solid;
    SbVec4f color{0, 0, 0, 1};
    SbVec4f topColor{0, 0, 0, 1};
    std::shared_ptr<const RenderImage> image;
};

} // namespace vexel
