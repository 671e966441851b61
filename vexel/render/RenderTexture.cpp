#include <vexel/render/RenderTexture.h>

#include <cassert>

#include <vexel/render/detail/ResourceTrash.h>

namespace vexel {

RenderImage::RenderImage(int width, int height, int depth, int components, std::vector<std::uint8_t> texels)
    : m_width(width), m_height(height), m_depth(depth), m_components(components), m_texels(std::move(texels)),
      m_id(ResourceTrash::newId())
{
    assert(width > 0 && height > 0 && depth > 0 && components >= 1 && components <= 4 &&
           "RenderImage: sizes must be positive and components from 1 to 4");
    m_texels.resize(static_cast<std::size_t>(width) * height * depth * components);
}

RenderImage::~RenderImage()
{
    ResourceTrash::discard(m_id);
}

} // namespace vexel
