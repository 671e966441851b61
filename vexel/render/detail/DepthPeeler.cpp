#include <vexel/render/detail/DepthPeeler.h>

#include <utility>

#include <epoxy/gl.h>

#include <vexel/render/detail/DepthFormat.h>
#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

constexpr int MaxLayers = 32;

const char* const MergeFragment = R"(
uniform sampler2D image;
uniform ivec2 corner;
uniform bool multiply;
void main()
{
    vec4 texel = texelFetch(image, ivec2(gl_FragCoord.xy) - corner, 0);
    result = multiply ? vec4(texel.rgb * texel.a, texel.a) : texel;
}
)";

/** Runs once for every sample. */
const char* const MergeSamplesFragment = R"(
uniform sampler2DMS image;
uniform ivec2 corner;
uniform bool multiply;
void main()
{
    vec4 texel = texelFetch(image, ivec2(gl_FragCoord.xy) - corner, gl_SampleID);
    result = multiply ? vec4(texel.rgb * texel.a, texel.a) : texel;
}
)";

bool canShadeSamples()
{
    static const bool can = epoxy_gl_version() >= 40 || epoxy_has_gl_extension("GL_ARB_sample_shading");
    return can;
}

} // namespace

bool DepthPeeler::Format::operator==(const Format& other) const
{
    return width == other.width && height == other.height && samples == other.samples && depth == other.depth;
}

DepthPeeler::DepthPeeler()
    : m_merge(MergeFragment), m_mergeSamples(MergeSamplesFragment, "#extension GL_ARB_sample_shading : enable\n")
{
}

DepthPeeler::Format DepthPeeler::formatFor(const RenderViewport& viewport, unsigned target)
{
    GLint samples = 0;
    glGetIntegerv(GL_SAMPLES, &samples);
    return {viewport.width, viewport.height, samples > 1 && canShadeSamples() ? samples : 0,
            DepthFormat::ofDrawFramebuffer(target)};
}

unsigned DepthPeeler::textureTarget() const
{
    return m_format.samples ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D;
}

void DepthPeeler::fit(const Format& format)
{
    if (m_framebuffer && m_format == format)
        return;
    if (!m_framebuffer)
        glGenFramebuffers(1, &m_framebuffer);
    // Made anew, because a texture cannot become a multisampled one.
    glDeleteTextures(TextureCount, m_textures);
    glGenTextures(TextureCount, m_textures);
    m_format = format;
    const GLenum formats[TextureCount] = {GL_RGBA16F, GL_RGBA8, format.depth, format.depth, format.depth};
    for (int i = 0; i < TextureCount; ++i) {
        glBindTexture(textureTarget(), m_textures[i]);
        if (format.samples) {
            glTexImage2DMultisample(GL_TEXTURE_2D_MULTISAMPLE, format.samples, formats[i], format.width, format.height,
                                    GL_TRUE);
            continue;
        }
        const auto [external, type] =
            i < DepthA ? std::pair<unsigned, unsigned>(GL_RGBA, GL_UNSIGNED_BYTE) : DepthFormat::transfer(format.depth);
        glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(formats[i]), format.width, format.height, 0, external, type,
                     nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
}

void DepthPeeler::attach(Texture color, Texture depth) const
{
    const GLenum point = DepthFormat::attachment(m_format.depth);
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, textureTarget(), m_textures[color], 0);
    glFramebufferTexture2D(GL_FRAMEBUFFER, point, textureTarget(), m_textures[depth], 0);
}

void DepthPeeler::bindDepths(Texture previous) const
{
    glActiveTexture(GL_TEXTURE0 + LayerDepthUnit);
    glBindTexture(textureTarget(), m_textures[previous]);
    glActiveTexture(GL_TEXTURE0 + OpaqueDepthUnit);
    glBindTexture(textureTarget(), m_textures[OpaqueDepth]);
}

void DepthPeeler::copyOpaqueDepth(unsigned target, const RenderViewport& viewport) const
{
    attach(Sum, OpaqueDepth);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, target);
    glBlitFramebuffer(viewport.x, viewport.y, viewport.x + viewport.width, viewport.y + viewport.height, 0, 0,
                      viewport.width, viewport.height, GL_DEPTH_BUFFER_BIT, GL_NEAREST);
}

void DepthPeeler::merge(Texture source, const RenderViewport& corner, bool multiply)
{
    ScreenPass& pass = m_format.samples ? m_mergeSamples : m_merge;
    pass.use();
    glActiveTexture(GL_TEXTURE0 + ImageUnit);
    glBindTexture(textureTarget(), m_textures[source]);
    glUniform1i(pass.uniform("image"), ImageUnit);
    glUniform2i(pass.uniform("corner"), corner.x, corner.y);
    glUniform1i(pass.uniform("multiply"), multiply);
    glViewport(corner.x, corner.y, corner.width, corner.height);
    pass.draw();
}

void DepthPeeler::draw(const RenderViewport& viewport, const DrawLayer& drawLayer)
{
    GLint target = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target);
    glActiveTexture(GL_TEXTURE0 + LayerDepthUnit);
    fit(formatFor(viewport, target));
    copyOpaqueDepth(target, viewport);
    const float nothing[] = {0, 0, 0, 0};
    const float nearest = 0;
    const float farthest = 1;
    glDepthMask(GL_TRUE);
    attach(Sum, DepthB);
    glClearBufferfv(GL_COLOR, 0, nothing);
    glClearBufferfv(GL_DEPTH, 0, &nearest);

    const RenderViewport whole{0, 0, viewport.width, viewport.height};
    GLuint query = 0;
    glGenQueries(1, &query);
    for (int layer = 0; layer < MaxLayers; ++layer) {
        attach(Layer, layer % 2 ? DepthB : DepthA);
        glDepthMask(GL_TRUE);
        glDisable(GL_BLEND);
        glClearBufferfv(GL_COLOR, 0, nothing);
        glClearBufferfv(GL_DEPTH, 0, &farthest);
        bindDepths(layer % 2 ? DepthA : DepthB);
        glBeginQuery(GL_ANY_SAMPLES_PASSED, query);
        drawLayer(whole, m_format.samples > 0);
        glEndQuery(GL_ANY_SAMPLES_PASSED);
        GLuint drawn = 0;
        glGetQueryObjectuiv(query, GL_QUERY_RESULT, &drawn);
        if (!drawn)
            break;
        // Under what is there already: only as much as the nearer layers let through.
        attach(Sum, OpaqueDepth);
        glEnable(GL_BLEND);
        glBlendFunc(GL_ONE_MINUS_DST_ALPHA, GL_ONE);
        merge(Layer, whole, true);
    }
    glDeleteQueries(1, &query);

    glBindFramebuffer(GL_FRAMEBUFFER, target);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    merge(Sum, viewport, false);
    glDisable(GL_BLEND);
}

void DepthPeeler::release()
{
    glDeleteFramebuffers(1, &m_framebuffer);
    glDeleteTextures(TextureCount, m_textures);
    m_framebuffer = 0;
    m_merge.release();
    m_mergeSamples.release();
}

} // namespace vexel
