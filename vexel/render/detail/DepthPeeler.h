#pragma once

#include <functional>

#include <vexel/render/RenderView.h>
#include <vexel/render/detail/ScreenPass.h>

namespace vexel {

/**
 * Blends transparent surfaces in the right order for every pixel, also where they cross: draws them again and again,
 * each time showing the nearest surface behind the one before, until nothing is left.
 */
class DepthPeeler {
public:
    DepthPeeler();

    /** Blends what `drawLayer` draws over the bound framebuffer, whose depth hides things. `drawLayer` gets the
       viewport to use and must draw with ProgramKey::Layer. */
    void draw(const RenderViewport& viewport, const std::function<void(const RenderViewport&)>& drawLayer);
    void release();

private:
    enum Texture { Sum, Layer, DepthA, DepthB, OpaqueDepth, TextureCount };

    void fit(int width, int height, unsigned depthFormat);
    void attach(Texture color, Texture depth) const;
    void copyOpaqueDepth(unsigned target, const RenderViewport& viewport);

    unsigned m_framebuffer = 0;
    unsigned m_textures[TextureCount] = {};
    int m_width = 0;
    int m_height = 0;
    unsigned m_depthFormat = 0;
    ScreenPass m_merge;
};

} // namespace vexel
