#include <vexel/render/detail/DepthPeeler.h>

#include <epoxy/gl.h>

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

/** Format of the bound framebuffer's depth: copying depth is allowed between equal formats only. */
GLenum depthFormatOf(GLuint framebuffer)
{
    const auto parameter = [&](GLenum attachment, GLenum name) {
        GLint value = 0;
        glGetFramebufferAttachmentParameteriv(GL_DRAW_FRAMEBUFFER, attachment, name, &value);
        return value;
    };
    const GLenum depth = framebuffer ? GL_DEPTH_ATTACHMENT : GL_DEPTH;
    const GLenum stencil = framebuffer ? GL_STENCIL_ATTACHMENT : GL_STENCIL;
    const GLint bits = parameter(depth, GL_FRAMEBUFFER_ATTACHMENT_DEPTH_SIZE);
    const bool has_stencil = parameter(stencil, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE) != GL_NONE &&
                             parameter(stencil, GL_FRAMEBUFFER_ATTACHMENT_STENCIL_SIZE) > 0;
    if (bits > 24) {
        const bool is_float = parameter(depth, GL_FRAMEBUFFER_ATTACHMENT_COMPONENT_TYPE) == GL_FLOAT;
        return has_stencil ? GL_DEPTH32F_STENCIL8 : is_float ? GL_DEPTH_COMPONENT32F : GL_DEPTH_COMPONENT32;
    }
    if (bits > 16)
        return has_stencil ? GL_DEPTH24_STENCIL8 : GL_DEPTH_COMPONENT24;
    return GL_DEPTH_COMPONENT16;
}

bool hasStencil(GLenum format)
{
    return format == GL_DEPTH24_STENCIL8 || format == GL_DEPTH32F_STENCIL8;
}

} // namespace

DepthPeeler::DepthPeeler() : m_merge(MergeFragment) {}

void DepthPeeler::fit(int width, int height, unsigned depthFormat)
{
    if (m_framebuffer && m_width == width && m_height == height && m_depthFormat == depthFormat)
        return;
    if (!m_framebuffer) {
        glGenFramebuffers(1, &m_framebuffer);
        glGenTextures(TextureCount, m_textures);
    }
    m_width = width;
    m_height = height;
    m_depthFormat = depthFormat;
    const GLint depth = static_cast<GLint>(depthFormat);
    const GLint formats[TextureCount] = {GL_RGBA16F, GL_RGBA8, depth, depth, depth};
    for (int i = 0; i < TextureCount; ++i) {
        GLenum external = GL_RGBA;
        GLenum type = GL_UNSIGNED_BYTE;
        if (i >= DepthA) {
            external = hasStencil(depthFormat) ? GL_DEPTH_STENCIL : GL_DEPTH_COMPONENT;
            type = depthFormat == GL_DEPTH24_STENCIL8    ? GL_UNSIGNED_INT_24_8
                   : depthFormat == GL_DEPTH32F_STENCIL8 ? GL_FLOAT_32_UNSIGNED_INT_24_8_REV
                                                         : GL_FLOAT;
        }
        glBindTexture(GL_TEXTURE_2D, m_textures[i]);
        glTexImage2D(GL_TEXTURE_2D, 0, formats[i], width, height, 0, external, type, nullptr);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
}

void DepthPeeler::attach(Texture color, Texture depth) const
{
    const GLenum point = hasStencil(m_depthFormat) ? GL_DEPTH_STENCIL_ATTACHMENT : GL_DEPTH_ATTACHMENT;
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_textures[color], 0);
    glFramebufferTexture2D(GL_FRAMEBUFFER, point, GL_TEXTURE_2D, m_textures[depth], 0);
}

void DepthPeeler::copyOpaqueDepth(unsigned target, const RenderViewport& viewport)
{
    attach(Sum, OpaqueDepth);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, target);
    glBlitFramebuffer(viewport.x, viewport.y, viewport.x + viewport.width, viewport.y + viewport.height, 0, 0, m_width,
                      m_height, GL_DEPTH_BUFFER_BIT, GL_NEAREST);
}

void DepthPeeler::draw(const RenderViewport& viewport, const std::function<void(const RenderViewport&)>& drawLayer)
{
    GLint target = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target);
    glActiveTexture(GL_TEXTURE0 + LayerDepthUnit);
    fit(viewport.width, viewport.height, depthFormatOf(target));
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
        const Texture current = layer % 2 ? DepthB : DepthA;
        const Texture previous = layer % 2 ? DepthA : DepthB;
        attach(Layer, current);
        glDepthMask(GL_TRUE);
        glDisable(GL_BLEND);
        glClearBufferfv(GL_COLOR, 0, nothing);
        glClearBufferfv(GL_DEPTH, 0, &farthest);
        glActiveTexture(GL_TEXTURE0 + LayerDepthUnit);
        glBindTexture(GL_TEXTURE_2D, m_textures[previous]);
        glActiveTexture(GL_TEXTURE0 + OpaqueDepthUnit);
        glBindTexture(GL_TEXTURE_2D, m_textures[OpaqueDepth]);
        glBeginQuery(GL_ANY_SAMPLES_PASSED, query);
        drawLayer(whole);
        glEndQuery(GL_ANY_SAMPLES_PASSED);
        GLuint drawn = 0;
        glGetQueryObjectuiv(query, GL_QUERY_RESULT, &drawn);
        if (!drawn)
            break;
        // Under what is there already: only as much as the nearer layers let through.
        attach(Sum, OpaqueDepth);
        glEnable(GL_BLEND);
        glBlendFunc(GL_ONE_MINUS_DST_ALPHA, GL_ONE);
        m_merge.use();
        glActiveTexture(GL_TEXTURE0 + ImageUnit);
        glBindTexture(GL_TEXTURE_2D, m_textures[Layer]);
        glUniform1i(m_merge.uniform("image"), ImageUnit);
        glUniform2i(m_merge.uniform("corner"), 0, 0);
        glUniform1i(m_merge.uniform("multiply"), true);
        m_merge.draw();
    }
    glDeleteQueries(1, &query);

    glBindFramebuffer(GL_FRAMEBUFFER, target);
    glViewport(viewport.x, viewport.y, viewport.width, viewport.height);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_merge.use();
    glActiveTexture(GL_TEXTURE0 + ImageUnit);
    glBindTexture(GL_TEXTURE_2D, m_textures[Sum]);
    glUniform1i(m_merge.uniform("image"), ImageUnit);
    glUniform2i(m_merge.uniform("corner"), viewport.x, viewport.y);
    glUniform1i(m_merge.uniform("multiply"), false);
    m_merge.draw();
    glDisable(GL_BLEND);
}

void DepthPeeler::release()
{
    glDeleteFramebuffers(1, &m_framebuffer);
    glDeleteTextures(TextureCount, m_textures);
    m_framebuffer = 0;
    m_merge.release();
}

} // namespace vexel
