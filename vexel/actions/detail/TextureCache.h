#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <vexel/actions/detail/ChangeStamps.h>

class SoNode;
class SoState;

namespace vexel {

class RenderImage;
struct RenderTexture;

/** Textures of the state; the picture of a node is handed over once. */
class TextureCache {
public:
    explicit TextureCache(const ChangeStamps& stamps) : m_stamps(stamps) {}

    std::vector<RenderTexture> get(const SoState& state);
    /** The picture of a texture, image or background node; null for none. */
    std::shared_ptr<const RenderImage> imageOf(const SoNode& node);

private:
    struct Kept {
        std::uint64_t stamp = 0;
        std::weak_ptr<const RenderImage> image;
    };

    const ChangeStamps& m_stamps;
    std::unordered_map<SbUniqueId, Kept> m_images;
};

} // namespace vexel
