#include <epoxy/gl.h>

#include <vexel/render/OffscreenTarget.h>

#include <algorithm>
#include <cassert>

namespace vexel {

namespace {

GLint limit(GLenum name)
{
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

void attach(GLenum point, GLuint buffer, int samples, GLenum format, int width, int height)
{
    glBindRenderbuffer(GL_RENDERBUFFER, buffer);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, point, GL_RENDERBUFFER, buffer);
}

} // namespace

OffscreenTarget::OffscreenTarget(int width, int height, int samples)
    : m_width(width), m_height(height), m_samples(std::min(samples, limit(GL_MAX_SAMPLES)))
{
    assert(width > 0 && height > 0 && width <= maxSize() && height <= maxSize() &&
           "OffscreenTarget: the size must be from 1 to maxSize()");
    while (glGetError() != GL_NO_ERROR) {
    }
    glGenFramebuffers(1, &m_framebuffer);
    glGenRenderbuffers(BufferCount, m_buffers);
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    const int buffer_samples = m_samples > 1 ? m_samples : 0;
    attach(GL_COLOR_ATTACHMENT0, m_buffers[Color], buffer_samples, GL_RGBA8, width, height);
    attach(GL_DEPTH_STENCIL_ATTACHMENT, m_buffers[Depth], buffer_samples, GL_DEPTH24_STENCIL8, width, height);
    m_complete = glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    if (buffer_samples) {
        glGenFramebuffers(1, &m_resolveFramebuffer);
        glBindFramebuffer(GL_FRAMEBUFFER, m_resolveFramebuffer);
        attach(GL_COLOR_ATTACHMENT0, m_buffers[Resolved], 0, GL_RGBA8, width, height);
        m_complete = m_complete && glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }
    m_complete = m_complete && glGetError() == GL_NO_ERROR;
    bind();
}

OffscreenTarget::~OffscreenTarget()
{
    glDeleteFramebuffers(1, &m_framebuffer);
    glDeleteFramebuffers(1, &m_resolveFramebuffer);
    glDeleteRenderbuffers(BufferCount, m_buffers);
}

void OffscreenTarget::bind() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
}

QImage OffscreenTarget::image() const
{
    if (m_resolveFramebuffer) {
        glBindFramebuffer(GL_READ_FRAMEBUFFER, m_framebuffer);
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_resolveFramebuffer);
        glBlitFramebuffer(0, 0, m_width, m_height, 0, 0, m_width, m_height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
        glBindFramebuffer(GL_FRAMEBUFFER, m_resolveFramebuffer);
    } else {
        bind();
    }
    QImage picture(m_width, m_height, QImage::Format_RGBA8888_Premultiplied);
    if (!picture.isNull())
        glReadPixels(0, 0, m_width, m_height, GL_RGBA, GL_UNSIGNED_BYTE, picture.bits());
    bind();
    return picture.mirrored();
}

int OffscreenTarget::maxSize()
{
    GLint viewport[2] = {0, 0};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    return std::min({limit(GL_MAX_RENDERBUFFER_SIZE), viewport[0], viewport[1]});
}

} // namespace vexel
