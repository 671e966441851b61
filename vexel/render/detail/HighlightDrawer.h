#pragma once

#include <vector>

#include <vexel/render/RenderHighlight.h>
#include <vexel/render/RenderView.h>
#include <vexel/render/detail/ScreenPass.h>

namespace vexel {

class DrawListData;
class PacketDrawer;
struct DrawCommand;

/** Marks packets by lines over them or by a glow around them. */
class HighlightDrawer {
public:
    explicit HighlightDrawer(PacketDrawer& packets);

    void drawLines(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
                   const RenderHighlight& highlight, const RenderView& view);
    void drawHalo(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
                  const RenderHighlight& highlight, const RenderView& view);
    void release();

private:
    enum Texture { Mask, Smeared, TextureCount };

    /** What a mask must be like to take over the depth of the target. */
    struct Format {
        int width = 0;
        int height = 0;
        int samples = 0;
        unsigned depth = 0;

        bool operator==(const Format& other) const;
    };

    static Format formatFor(unsigned target, const RenderViewport& viewport);
    void fit(const Format& format);
    void drawMask(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
                  const RenderView& view, const RenderHighlight& highlight, unsigned target);

    PacketDrawer& m_packets;
    ScreenPass m_smear;
    ScreenPass m_glow;
    unsigned m_maskFramebuffer = 0;
    unsigned m_maskSamples = 0;
    unsigned m_maskDepth = 0;
    unsigned m_framebuffer = 0;
    unsigned m_textures[TextureCount] = {};
    Format m_format;
};

} // namespace vexel
