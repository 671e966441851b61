#include <vexel/actions/detail/TextureCache.h>

#include <cmath>

#include <vexel/nodes/SoBumpMap.h>
#include <vexel/nodes/SoImage.h>
#include <vexel/nodes/SoImageBackground.h>
#include <vexel/nodes/SoTexture2.h>
#include <vexel/nodes/SoTexture3.h>
#include <vexel/nodes/SoTextureCoordinateEnvironment.h>
#include <vexel/nodes/SoTextureCoordinatePlane.h>
#include <vexel/render/RenderTexture.h>
#include <vexel/state/SoState.h>

namespace vexel {

namespace {

template <class Node>
const Node* as(const SoNode& node)
{
    return node.isOfType(Node::getClassTypeId()) ? static_cast<const Node*>(&node) : nullptr;
}

std::shared_ptr<const RenderImage> made(const SoSFImage& image)
{
    if (image.isEmpty())
        return nullptr;
    return std::make_shared<const RenderImage>(image.getSize()[0], image.getSize()[1], 1, image.getNumComponents(),
                                               image.getBytes());
}

std::shared_ptr<const RenderImage> made(const SoSFImage3& image)
{
    if (image.isEmpty())
        return nullptr;
    const SbVec3i32 size = image.getSize();
    return std::make_shared<const RenderImage>(size[0], size[1], size[2], image.getNumComponents(), image.getBytes());
}

// Normals from the slopes of a height picture, which goes on at its edges as it began.
std::shared_ptr<const RenderImage> normalsOf(const SoSFImage& image)
{
    if (image.isEmpty() || image.getNumComponents() >= 3)
        return made(image);
    const SbVec2i32 size = image.getSize();
    const int components = image.getNumComponents();
    const std::vector<std::uint8_t>& bytes = image.getBytes();
    const auto height = [&](int x, int y) {
        const int at = (y + size[1]) % size[1] * size[0] + (x + size[0]) % size[0];
        return static_cast<float>(bytes[static_cast<std::size_t>(at) * components]) / 255;
    };
    constexpr float Steepness = 4;
    std::vector<std::uint8_t> texels;
    texels.reserve(bytes.size() * 3);
    for (int y = 0; y < size[1]; ++y) {
        for (int x = 0; x < size[0]; ++x) {
            SbVec3f normal((height(x - 1, y) - height(x + 1, y)) * Steepness,
                           (height(x, y - 1) - height(x, y + 1)) * Steepness, 1);
            normal.normalize();
            for (int axis = 0; axis < 3; ++axis)
                texels.push_back(static_cast<std::uint8_t>(std::lround((normal[axis] + 1) * 127.5f)));
        }
    }
    return std::make_shared<const RenderImage>(size[0], size[1], 1, 3, std::move(texels));
}

template <class Node>
void addWrap(const Node& node, RenderTexture& texture)
{
    texture.wrapS = static_cast<RenderTexture::Wrap>(node.wrapS.getValue());
    texture.wrapT = static_cast<RenderTexture::Wrap>(node.wrapT.getValue());
}

template <class Node>
void addModel(const Node& node, RenderTexture& texture)
{
    addWrap(node, texture);
    texture.model = static_cast<RenderTexture::Model>(node.model.getValue());
    texture.blendColor = node.blendColor.getValue();
}

void addNode(const SoNode& node, RenderTexture& texture)
{
    if (const auto* flat = as<SoTexture2>(node)) {
        addModel(*flat, texture);
    } else if (const auto* volume = as<SoTexture3>(node)) {
        addModel(*volume, texture);
        texture.wrapR = static_cast<RenderTexture::Wrap>(volume->wrapR.getValue());
    } else if (as<SoImage>(node)) {
        texture.wrapS = texture.wrapT = RenderTexture::Wrap::Clamp;
        texture.filter = RenderTexture::Filter::Linear;
        texture.model = RenderTexture::Model::Replace;
    }
}

RenderTexture::Filter filterOf(float quality)
{
    if (quality < 0.25f)
        return RenderTexture::Filter::Nearest;
    return quality < 0.5f ? RenderTexture::Filter::Linear : RenderTexture::Filter::Mipmap;
}

// The coordinate is the product of point and direction divided by the direction's square.
SbVec4f planeOf(const SbVec3f& direction)
{
    const float square = direction.dot(direction);
    const SbVec3f plane = square > 0 ? direction / square : SbVec3f(0, 0, 0);
    return SbVec4f(plane[0], plane[1], plane[2], 0);
}

void addFunction(const SoNode& function, RenderTexture& texture)
{
    if (const auto* plane = as<SoTextureCoordinatePlane>(function)) {
        texture.coordinates = RenderTexture::Coordinates::Plane;
        texture.planeS = planeOf(plane->directionS.getValue());
        texture.planeT = planeOf(plane->directionT.getValue());
    } else if (as<SoTextureCoordinateEnvironment>(function)) {
        texture.coordinates = RenderTexture::Coordinates::Environment;
    }
}

} // namespace

std::shared_ptr<const RenderImage> TextureCache::imageOf(const SoNode& node)
{
    const std::uint64_t stamp = m_stamps.of(node.getNodeId());
    Kept& kept = m_images[node.getNodeId()];
    std::shared_ptr<const RenderImage> image = kept.image.lock();
    if (image && kept.stamp == stamp)
        return image;
    if (const auto* flat = as<SoTexture2>(node))
        image = made(flat->image);
    else if (const auto* volume = as<SoTexture3>(node))
        image = made(volume->images);
    else if (const auto* shape = as<SoImage>(node))
        image = made(shape->image);
    else if (const auto* background = as<SoImageBackground>(node))
        image = made(background->image);
    else if (const auto* bumps = as<SoBumpMap>(node))
        image = normalsOf(bumps->image);
    kept = {stamp, image};
    return image;
}

std::vector<RenderTexture> TextureCache::get(const SoState& state)
{
    std::vector<RenderTexture> textures;
    if (state->textureQuality <= 0)
        return textures;
    if (state->bumpMap) {
        RenderTexture texture;
        texture.image = imageOf(*state->bumpMap);
        addWrap(static_cast<const SoBumpMap&>(*state->bumpMap), texture);
        texture.model = RenderTexture::Model::Bump;
        textures.push_back(std::move(texture));
    }
    for (const SoTextureState& unit : state->textures) {
        if (!unit.texture)
            continue;
        RenderTexture texture;
        texture.image = imageOf(*unit.texture);
        texture.matrix = unit.matrix;
        texture.filter = filterOf(state->textureQuality);
        addNode(*unit.texture, texture);
        if (unit.function)
            addFunction(*unit.function, texture);
        textures.push_back(std::move(texture));
    }
    return textures;
}

} // namespace vexel
