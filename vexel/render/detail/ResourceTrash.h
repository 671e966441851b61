#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include <vexel/base/VexelApi.h>

namespace vexel {

/**
 * Tells renderers what they need no longer keep on the graphics card.
 *
 * Geometries, images and draw lists die anywhere, in any thread, with any or no context current; their buffers can be
 * deleted only while the right context is. So each renderer has a trash that collects the numbers of the dead, and
 * empties it when it draws next.
 */
class ResourceTrash {
public:
    ResourceTrash();
    ~ResourceTrash();
    ResourceTrash(const ResourceTrash&) = delete;
    ResourceTrash& operator=(const ResourceTrash&) = delete;

    /** Numbers of the things that died since the last call. */
    std::vector<std::uint64_t> take();

    /** A number for a thing that renderers may keep buffers for; never 0, never given twice. */
    static std::uint64_t newId();

    /** The thing of that number is gone. */
    static void discard(std::uint64_t id);

private:
    struct Registry;
    static Registry& registry();

    std::vector<std::uint64_t> m_ids;
};

} // namespace vexel
