#include <vexel/render/detail/TextureStore.h>

#include <epoxy/gl.h>

#include <vexel/render/RenderTexture.h>

namespace vexel {

namespace {

constexpr std::uint32_t NotSet = ~0u;

GLenum targetOf(const RenderImage& image)
{
    return image.depth() > 1 ? GL_TEXTURE_3D : GL_TEXTURE_2D;
}

std::uint32_t samplingOf(const RenderTexture& texture)
{
    return static_cast<std::uint32_t>(texture.wrapS) | static_cast<std::uint32_t>(texture.wrapT) << 2 |
           static_cast<std::uint32_t>(texture.wrapR) << 4 | static_cast<std::uint32_t>(texture.filter) << 6;
}

GLint wrapMode(RenderTexture::Wrap wrap)
{
    return wrap == RenderTexture::Wrap::Repeat ? GL_REPEAT : GL_CLAMP_TO_EDGE;
}

void setSampling(GLenum target, const RenderTexture& texture)
{
    const GLint minify[] = {GL_NEAREST, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR};
    const GLint magnify = texture.filter == RenderTexture::Filter::Nearest ? GL_NEAREST : GL_LINEAR;
    glTexParameteri(target, GL_TEXTURE_WRAP_S, wrapMode(texture.wrapS));
    glTexParameteri(target, GL_TEXTURE_WRAP_T, wrapMode(texture.wrapT));
    glTexParameteri(target, GL_TEXTURE_WRAP_R, wrapMode(texture.wrapR));
    glTexParameteri(target, GL_TEXTURE_MIN_FILTER, minify[static_cast<int>(texture.filter)]);
    glTexParameteri(target, GL_TEXTURE_MAG_FILTER, magnify);
}

struct TexelFormat {
    GLint internal;
    GLenum external;
    GLint swizzle[4];
};

const TexelFormat Formats[] = {{GL_R8, GL_RED, {GL_RED, GL_RED, GL_RED, GL_ONE}},
                               {GL_RG8, GL_RG, {GL_RED, GL_RED, GL_RED, GL_GREEN}},
                               {GL_RGB8, GL_RGB, {GL_RED, GL_GREEN, GL_BLUE, GL_ONE}},
                               {GL_RGBA8, GL_RGBA, {GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA}}};

} // namespace

TextureStore::Entry TextureStore::upload(const RenderImage& image)
{
    const GLenum target = targetOf(image);
    const TexelFormat& format = Formats[image.components() - 1];
    Entry entry{0, NotSet};
    glGenTextures(1, &entry.name);
    glBindTexture(target, entry.name);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    if (target == GL_TEXTURE_3D)
        glTexImage3D(target, 0, format.internal, image.width(), image.height(), image.depth(), 0, format.external,
                     GL_UNSIGNED_BYTE, image.texels().data());
    else
        glTexImage2D(target, 0, format.internal, image.width(), image.height(), 0, format.external, GL_UNSIGNED_BYTE,
                     image.texels().data());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexParameteriv(target, GL_TEXTURE_SWIZZLE_RGBA, format.swizzle);
    glGenerateMipmap(target);
    return entry;
}

void TextureStore::bind(const RenderTexture& texture)
{
    const RenderImage& image = *texture.image;
    auto found = m_entries.find(image.id());
    if (found == m_entries.end())
        found = m_entries.emplace(image.id(), upload(image)).first;
    glBindTexture(targetOf(image), found->second.name);
    const std::uint32_t sampling = samplingOf(texture);
    if (found->second.sampling == sampling)
        return;
    setSampling(targetOf(image), texture);
    found->second.sampling = sampling;
}

bool TextureStore::drop(std::uint64_t imageId)
{
    const auto found = m_entries.find(imageId);
    if (found == m_entries.end())
        return false;
    glDeleteTextures(1, &found->second.name);
    m_entries.erase(found);
    return true;
}

void TextureStore::clear()
{
    for (const auto& [id, entry] : m_entries)
        glDeleteTextures(1, &entry.name);
    m_entries.clear();
}

} // namespace vexel
