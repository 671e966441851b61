#pragma once

#include <functional>

#include <QtGui/QImage>

#include <vexel/base/VexelApi.h>
#include <vexel/render/RenderView.h>

namespace vexel {

/** Size and quality of a picture that is drawn in memory. */
struct OffscreenPicture {
    int width = 0;
    int height = 0;
    int samples = 4;     ///< per pixel, for smooth edges
    int tileSize = 2048; ///< larger pictures are drawn in pieces, so that they may be larger than the driver allows
};

/**
 * Draws a picture of any size with the current context: `draw` is called once per piece, with a view that shows that
 * piece of `view`; the viewport of `view` plays no part. Returns a null image when there is not enough memory.
 */
VEXEL_API QImage drawPicture(const OffscreenPicture& picture, const RenderView& view,
                             const std::function<void(const RenderView&)>& draw);

} // namespace vexel
