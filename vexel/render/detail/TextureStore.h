#pragma once

#include <cstdint>
#include <unordered_map>

namespace vexel {

class RenderImage;
struct RenderTexture;

/** The images of one context, and the sampling set on them last. */
class TextureStore {
public:
    /** Binds to the active texture unit and sets wrapping and filter. Uploads at the first use. */
    void bind(const RenderTexture& texture);

    bool drop(std::uint64_t imageId);
    void clear();

private:
    struct Entry {
        unsigned name;
        std::uint32_t sampling;
    };

    static Entry upload(const RenderImage& image);

    std::unordered_map<std::uint64_t, Entry> m_entries;
};

} // namespace vexel
