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

    void fit(int width, int height);
    void drawMask(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
                  const RenderView& view, float width);

    PacketDrawer& m_packets;
    ScreenPass m_smear;
    ScreenPass m_glow;
    unsigned m_maskFramebuffer = 0;
    unsigned m_maskSamples = 0;
    unsigned m_framebuffer = 0;
    unsigned m_textures[TextureCount] = {};
    int m_width = 0;
    int m_height = 0;
};

} // namespace vexel
