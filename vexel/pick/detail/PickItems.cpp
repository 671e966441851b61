#include <vexel/pick/detail/PickItems.h>

#include <vexel/render/RenderSurroundings.h>

namespace vexel {

std::uint32_t PickItems::add(const PickItem& item)
{
    if (m_free.empty()) {
        m_items.push_back(item);
        return static_cast<std::uint32_t>(m_items.size() - 1);
    }
    const std::uint32_t number = m_free.back();
    m_free.pop_back();
    m_items[number] = item;
    return number;
}

void PickItems::remove(std::uint32_t item)
{
    m_items[item] = PickItem();
    m_free.push_back(item);
}

bool PickItems::isClipped(std::uint32_t item, const SbVec3f& point) const
{
    const RenderSurroundings* surroundings = m_items[item].surroundings.get();
    if (!surroundings)
        return false;
    for (const SbVec4f& plane : surroundings->values().clipPlanes) {
        if (plane[0] * point[0] + plane[1] * point[1] + plane[2] * point[2] + plane[3] < 0)
            return true;
    }
    return false;
}

} // namespace vexel
