#pragma once

#include <functional>

#include <vexel/render/RenderView.h>
#include <vexel/render/detail/ScreenPass.h>

namespace vexel {

/**
 * Blends transparent surfaces in the right order for every sample, also where they cross: draws them again and again,
 * each time showing the nearest surface behind the one before, until nothing is left.
 */
class DepthPeeler {
public:
    DepthPeeler();

    /** Draws with ProgramKey::Layer into the given viewport of the bound framebuffer, which may be multisampled. */
    using DrawLayer = std::function<void(const RenderViewport&, bool multisampled)>;

    /** Blends what `drawLayer` draws over the bound framebuffer, whose depth hides things. */
    void draw(const RenderViewport& viewport, const DrawLayer& drawLayer);
    void release();

private:
    enum Texture { Sum, Layer, DepthA, DepthB, OpaqueDepth, TextureCount };

    /** What the textures are made for. */
    struct Format {
        int width;
        int height;
        int samples; ///< 0: one, in an ordinary texture
        unsigned depth;

        bool operator==(const Format& other) const;
    };

    static Format formatFor(const RenderViewport& viewport, unsigned target);
    void fit(const Format& format);
    unsigned textureTarget() const;
    void attach(Texture color, Texture depth) const;
    void bindDepths(Texture previous) const;
    void copyOpaqueDepth(unsigned target, const RenderViewport& viewport) const;
    void merge(Texture source, const RenderViewport& corner, bool multiply);

    unsigned m_framebuffer = 0;
    unsigned m_textures[TextureCount] = {};
    Format m_format{0, 0, 0, 0};
    ScreenPass m_merge;
    ScreenPass m_mergeSamples;
};

} // namespace vexel
