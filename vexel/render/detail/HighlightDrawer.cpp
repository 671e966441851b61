#include <vexel/render/detail/HighlightDrawer.h>

#include <algorithm>

#include <epoxy/gl.h>

#include <vexel/render/detail/DepthFormat.h>
#include <vexel/render/detail/PacketDrawer.h>

namespace vexel {

namespace {

constexpr int MaskSamples = 4;

const char* const SmearFragment = R"(
uniform sampler2D mask;
uniform float reach;
void main()
{
    ivec2 at = ivec2(gl_FragCoord.xy);
    int last = textureSize(mask, 0).x - 1;
    float sum = 0.0;
    float weights = 0.0;
    int steps = int(ceil(reach));
    for (int i = -steps; i <= steps; ++i) {
        float weight = exp(-3.0 * float(i * i) / (reach * reach));
        sum += weight * texelFetch(mask, ivec2(clamp(at.x + i, 0, last), at.y), 0).x;
        weights += weight;
    }
    result = vec4(sum / weights);
}
)";

const char* const GlowFragment = R"(
uniform sampler2D mask;
uniform sampler2D smeared;
uniform ivec2 corner;
uniform float reach;
uniform vec4 color;
void main()
{
    ivec2 at = ivec2(gl_FragCoord.xy) - corner;
    int last = textureSize(mask, 0).y - 1;
    float sum = 0.0;
    float weights = 0.0;
    int steps = int(ceil(reach));
    for (int i = -steps; i <= steps; ++i) {
        float weight = exp(-3.0 * float(i * i) / (reach * reach));
        sum += weight * texelFetch(smeared, ivec2(at.x, clamp(at.y + i, 0, last)), 0).x;
        weights += weight;
    }
    // At a straight edge the smeared mask is a half: full colour for a pixel or two, then fading away.
    float glow = smoothstep(0.0, 0.4, sum / weights);
    float outside = 1.0 - texelFetch(mask, at, 0).x;
    result = vec4(color.rgb, color.a * glow * outside);
}
)";

} // namespace

HighlightDrawer::HighlightDrawer(PacketDrawer& packets)
    : m_packets(packets), m_smear(SmearFragment), m_glow(GlowFragment)
{
}

void HighlightDrawer::drawLines(const DrawListData& list, const std::vector<DrawCommand>& commands,
                                unsigned instanceBuffer, const RenderHighlight& highlight, const RenderView& view)
{
    Camera camera(view);
    camera.bringForward();
    m_packets.setCamera(camera);
    DrawPass pass;
    pass.output = ProgramKey::OneColor;
    pass.draw = RenderStyle::Draw::Lines;
    pass.depthWrite = false;
    pass.depthTest = highlight.onTop ? std::optional<bool>(false) : std::nullopt;
    pass.color = highlight.color;
    pass.lineWidth = highlight.width;
    pass.linePattern = highlight.linePattern;
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_packets.draw(list, commands, instanceBuffer, pass);
    glDisable(GL_BLEND);
}

bool HighlightDrawer::Format::operator==(const Format& other) const
{
    return width == other.width && height == other.height && samples == other.samples && depth == other.depth;
}

HighlightDrawer::Format HighlightDrawer::formatFor(unsigned target, const RenderViewport& viewport)
{
    GLint samples = 0;
    glGetIntegerv(GL_SAMPLES, &samples);
    return {viewport.width, viewport.height, samples > 1 ? samples : MaskSamples,
            DepthFormat::ofDrawFramebuffer(target)};
}

void HighlightDrawer::fit(const Format& format)
{
    if (m_framebuffer && m_format == format)
        return;
    if (!m_framebuffer) {
        glGenFramebuffers(1, &m_framebuffer);
        glGenFramebuffers(1, &m_maskFramebuffer);
        glGenRenderbuffers(1, &m_maskSamples);
        glGenRenderbuffers(1, &m_maskDepth);
        glGenTextures(TextureCount, m_textures);
    }
    m_format = format;
    for (const unsigned texture : m_textures) {
        glBindTexture(GL_TEXTURE_2D, texture);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, format.width, format.height, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
    glBindRenderbuffer(GL_RENDERBUFFER, m_maskSamples);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, format.samples, GL_R8, format.width, format.height);
    glBindFramebuffer(GL_FRAMEBUFFER, m_maskFramebuffer);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_maskSamples);
    // One of the format before this one may be attached to the stencil as well.
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, GL_RENDERBUFFER, 0);
    glBindRenderbuffer(GL_RENDERBUFFER, m_maskDepth);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, format.samples, format.depth, format.width, format.height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, DepthFormat::attachment(format.depth), GL_RENDERBUFFER, m_maskDepth);
}

void HighlightDrawer::drawMask(const DrawListData& list, const std::vector<DrawCommand>& commands,
                               unsigned instanceBuffer, const RenderView& view, const RenderHighlight& highlight,
                               unsigned target)
{
    const float nothing[] = {0, 0, 0, 0};
    glBindFramebuffer(GL_FRAMEBUFFER, m_maskFramebuffer);
    glClearBufferfv(GL_COLOR, 0, nothing);
    if (!highlight.onTop) {
        const RenderViewport& from = view.viewport;
        glBindFramebuffer(GL_READ_FRAMEBUFFER, target);
        glBlitFramebuffer(from.x, from.y, from.x + from.width, from.y + from.height, 0, 0, m_format.width,
                          m_format.height, GL_DEPTH_BUFFER_BIT, GL_NEAREST);
        glBindFramebuffer(GL_FRAMEBUFFER, m_maskFramebuffer);
    }
    RenderView inside = view;
    inside.viewport = {0, 0, m_format.width, m_format.height};
    Camera camera(inside);
    camera.bringForward();
    m_packets.setCamera(camera);
    DrawPass pass;
    pass.output = ProgramKey::OneColor;
    pass.depthTest = highlight.onTop ? std::optional<bool>(false) : std::nullopt;
    pass.depthWrite = false;
    pass.lineWidth = 1;
    m_packets.draw(list, commands, instanceBuffer, pass);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_framebuffer);
    glFramebufferTexture2D(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_textures[Mask], 0);
    glBlitFramebuffer(0, 0, m_format.width, m_format.height, 0, 0, m_format.width, m_format.height, GL_COLOR_BUFFER_BIT,
                      GL_NEAREST);
}

void HighlightDrawer::drawHalo(const DrawListData& list, const std::vector<DrawCommand>& commands,
                               unsigned instanceBuffer, const RenderHighlight& highlight, const RenderView& view)
{
    GLint target = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target);
    glActiveTexture(GL_TEXTURE0);
    fit(formatFor(static_cast<unsigned>(target), view.viewport));
    glDisable(GL_BLEND);
    const float reach = std::clamp(highlight.width, 1.0f, 64.0f);
    drawMask(list, commands, instanceBuffer, view, highlight, static_cast<unsigned>(target));

    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_textures[Smeared], 0);
    m_smear.use();
    glBindTexture(GL_TEXTURE_2D, m_textures[Mask]);
    glUniform1i(m_smear.uniform("mask"), 0);
    glUniform1f(m_smear.uniform("reach"), reach);
    m_smear.draw();

    glBindFramebuffer(GL_FRAMEBUFFER, target);
    glViewport(view.viewport.x, view.viewport.y, view.viewport.width, view.viewport.height);
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_glow.use();
    glActiveTexture(GL_TEXTURE1);
    glBindTexture(GL_TEXTURE_2D, m_textures[Smeared]);
    glUniform1i(m_glow.uniform("mask"), 0);
    glUniform1i(m_glow.uniform("smeared"), 1);
    glUniform2i(m_glow.uniform("corner"), view.viewport.x, view.viewport.y);
    glUniform1f(m_glow.uniform("reach"), reach);
    glUniform4fv(m_glow.uniform("color"), 1, &highlight.color[0]);
    m_glow.draw();
    glDisable(GL_BLEND);
}

void HighlightDrawer::release()
{
    glDeleteFramebuffers(1, &m_framebuffer);
    glDeleteFramebuffers(1, &m_maskFramebuffer);
    glDeleteRenderbuffers(1, &m_maskSamples);
    glDeleteRenderbuffers(1, &m_maskDepth);
    glDeleteTextures(TextureCount, m_textures);
    m_framebuffer = 0;
    m_smear.release();
    m_glow.release();
}

} // namespace vexel
