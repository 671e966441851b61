#include <vexel/render/detail/HighlightDrawer.h>

#include <algorithm>

#include <epoxy/gl.h>

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
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_packets.draw(list, commands, instanceBuffer, pass);
    glDisable(GL_BLEND);
}

void HighlightDrawer::fit(int width, int height)
{
    if (m_framebuffer && m_width == width && m_height == height)
        return;
    if (!m_framebuffer) {
        glGenFramebuffers(1, &m_framebuffer);
        glGenFramebuffers(1, &m_maskFramebuffer);
        glGenRenderbuffers(1, &m_maskSamples);
        glGenTextures(TextureCount, m_textures);
    }
    m_width = width;
    m_height = height;
    for (const unsigned texture : m_textures) {
        glBindTexture(GL_TEXTURE_2D, texture);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, width, height, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
    glBindRenderbuffer(GL_RENDERBUFFER, m_maskSamples);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, MaskSamples, GL_R8, width, height);
    glBindFramebuffer(GL_FRAMEBUFFER, m_maskFramebuffer);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_maskSamples);
}

void HighlightDrawer::drawMask(const DrawListData& list, const std::vector<DrawCommand>& commands,
                               unsigned instanceBuffer, const RenderView& view, float width)
{
    const float nothing[] = {0, 0, 0, 0};
    glBindFramebuffer(GL_FRAMEBUFFER, m_maskFramebuffer);
    glClearBufferfv(GL_COLOR, 0, nothing);
    RenderView inside = view;
    inside.viewport = {0, 0, m_width, m_height};
    m_packets.setCamera(Camera(inside));
    DrawPass pass;
    pass.output = ProgramKey::OneColor;
    pass.depthTest = false;
    pass.lineWidth = width;
    m_packets.draw(list, commands, instanceBuffer, pass);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_framebuffer);
    glFramebufferTexture2D(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_textures[Mask], 0);
    glBlitFramebuffer(0, 0, m_width, m_height, 0, 0, m_width, m_height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

void HighlightDrawer::drawHalo(const DrawListData& list, const std::vector<DrawCommand>& commands,
                               unsigned instanceBuffer, const RenderHighlight& highlight, const RenderView& view)
{
    GLint target = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target);
    glActiveTexture(GL_TEXTURE0);
    fit(view.viewport.width, view.viewport.height);
    glDisable(GL_BLEND);
    const float reach = std::clamp(highlight.width, 1.0f, 64.0f);
    drawMask(list, commands, instanceBuffer, view, 1);

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
    glDeleteTextures(TextureCount, m_textures);
    m_framebuffer = 0;
    m_smear.release();
    m_glow.release();
}

} // namespace vexel
