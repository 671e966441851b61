#pragma once

#include <cstdint>

#include <vexel/base/SbVec4f.h>

namespace vexel {

/** How chosen packets are marked after a frame has been drawn. */
struct RenderHighlight {
    enum class Kind : std::uint8_t {
        Line, ///< their edges as lines; lines and points thicker than they are
        Halo, ///< a glow around their outline
        Box   ///< the edges of the box around all of them
    };

    Kind kind = Kind::Line;
    SbVec4f color{1, 0.6f, 0, 1};       ///< red, green, blue, alpha
    std::uint16_t linePattern = 0xffff; ///< lowest bit first, a pixel each; of lines
    float width = 2;                    ///< pixels: of lines, or how far a halo reaches
    bool onTop = false;                 ///< also where other things are in front
};

} // namespace vexel
