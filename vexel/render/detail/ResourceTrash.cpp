#include <vexel/render/detail/ResourceTrash.h>

#include <algorithm>
#include <atomic>

namespace vexel {

struct ResourceTrash::Registry {
    std::mutex mutex;
    std::vector<ResourceTrash*> all;
    std::atomic<bool> anyone{false}; // lets shapes die cheaply in programs that never draw
};

ResourceTrash::Registry& ResourceTrash::registry()
{
    // Never destroyed: static objects of the host may own shapes that die later than any static of this library.
    static Registry& instance = *new Registry;
    return instance;
}

ResourceTrash::ResourceTrash()
{
    Registry& known = registry();
    const std::lock_guard<std::mutex> lock(known.mutex);
    known.all.push_back(this);
    known.anyone = true;
}

ResourceTrash::~ResourceTrash()
{
    Registry& known = registry();
    const std::lock_guard<std::mutex> lock(known.mutex);
    known.all.erase(std::find(known.all.begin(), known.all.end(), this));
    known.anyone = !known.all.empty();
}

std::vector<std::uint64_t> ResourceTrash::take()
{
    const std::lock_guard<std::mutex> lock(registry().mutex);
    return std::move(m_ids);
}

std::uint64_t ResourceTrash::newId()
{
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

void ResourceTrash::discard(std::uint64_t id)
{
    Registry& known = registry();
    if (!known.anyone)
        return;
    const std::lock_guard<std::mutex> lock(known.mutex);
    for (ResourceTrash* trash : known.all)
        trash->m_ids.push_back(id);
}

} // namespace vexel
