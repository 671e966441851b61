#pragma once

#include <optional>

#include <vexel/render/RenderState.h>

namespace vexel {

/** Deviations of one frame from what the draw list says. */
struct RenderOptions {
    bool clear = true; ///< draw the background and clear the depth before
    bool textures = true;
    bool lighting = true;
    std::optional<RenderStyle::Draw> draw;                 ///< for all surfaces
    std::optional<RenderStyle::Transparency> transparency; ///< for everything that is transparent
};

} // namespace vexel
