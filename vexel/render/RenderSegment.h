#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <vexel/render/RenderView.h>

namespace vexel {

/** A part of a draw list. Parts are drawn in their order; within one, packets are drawn in whatever order is fastest.
 */
struct RenderSegment {
    enum class Kind : std::uint8_t {
        Scene,
        Annotation, ///< drawn after everything else, over it
        Callback    ///< holds no packets: other code draws when its turn comes
    };

    Kind kind = Kind::Scene;
    /** Another camera than the one that the list is drawn with; an empty viewport means the whole one. */
    std::optional<RenderView> view;
    /** For Callback: called with the context and target current and the depth test on. May change any OpenGL state. */
    std::function<void(const RenderView&)> callback;
};

} // namespace vexel
