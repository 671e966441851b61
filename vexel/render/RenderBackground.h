#pragma once

#include <cstdint>
#include <memory>

#include <vexel/base/SbVec2f.h>
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
        Placed,    ///< the image at its own size, over `color`
        Tiled      ///< the image again and again from the lower left corner
    };

    Kind kind = Kind::Solid;
    SbVec4f color{0, 0, 0, 1};
    SbVec4f topColor{0, 0, 0, 1};
    std::shared_ptr<const RenderImage> image;
    SbVec2f place{0.5f, 0.5f}; ///< of a placed image: 0 at the left or bottom, 1 at the right or top
};

} // namespace vexel
