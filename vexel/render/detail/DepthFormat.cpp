#include <vexel/render/detail/DepthFormat.h>

#include <epoxy/gl.h>

namespace vexel::DepthFormat {

namespace {

GLint parameter(GLenum attachment, GLenum name)
{
    GLint value = 0;
    glGetFramebufferAttachmentParameteriv(GL_DRAW_FRAMEBUFFER, attachment, name, &value);
    return value;
}

} // namespace

unsigned ofDrawFramebuffer(unsigned framebuffer)
{
    const GLenum depth = framebuffer ? GL_DEPTH_ATTACHMENT : GL_DEPTH;
    const GLenum stencil = framebuffer ? GL_STENCIL_ATTACHMENT : GL_STENCIL;
    if (parameter(depth, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE) == GL_NONE)
        return GL_DEPTH_COMPONENT24;
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

std::pair<unsigned, unsigned> transfer(unsigned format)
{
    switch (format) {
    case GL_DEPTH24_STENCIL8:
        return {GL_DEPTH_STENCIL, GL_UNSIGNED_INT_24_8};
    case GL_DEPTH32F_STENCIL8:
        return {GL_DEPTH_STENCIL, GL_FLOAT_32_UNSIGNED_INT_24_8_REV};
    default:
        return {GL_DEPTH_COMPONENT, GL_FLOAT};
    }
}

unsigned attachment(unsigned format)
{
    const bool has_stencil = format == GL_DEPTH24_STENCIL8 || format == GL_DEPTH32F_STENCIL8;
    return has_stencil ? GL_DEPTH_STENCIL_ATTACHMENT : GL_DEPTH_ATTACHMENT;
}

} // namespace vexel::DepthFormat
