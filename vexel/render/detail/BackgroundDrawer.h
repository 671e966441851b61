#pragma once

#include <vexel/render/RenderBackground.h>
#include <vexel/render/RenderView.h>
#include <vexel/render/detail/ScreenPass.h>

namespace vexel {

class TextureStore;

/** Fills a viewport with a background and clears its depth. */
class BackgroundDrawer {
public:
    BackgroundDrawer();

    /** Fills the viewport, with the frame around it. */
    void draw(const RenderBackground& background, const RenderView& view, TextureStore& textures);
    /** What is around a picture that has been drawn. */
    static void drawFrame(const RenderFrame& frame, const RenderViewport& picture);
    void release();

private:
    void drawImage(const RenderBackground& background, const RenderView& view, TextureStore& textures);

    ScreenPass m_gradient;
    ScreenPass m_image;
};

/** Restricts clearing to a viewport during its own life time. */
class ScissorScope {
public:
    explicit ScissorScope(const RenderViewport& viewport);
    ~ScissorScope();
    ScissorScope(const ScissorScope&) = delete;
    ScissorScope& operator=(const ScissorScope&) = delete;
};

} // namespace vexel
