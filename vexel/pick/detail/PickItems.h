#pragma once

#include <vector>

#include <vexel/pick/PickScene.h>

namespace vexel {

/** Table of items by their number, as the two casters see it. */
class PickItems {
public:
    std::uint32_t add(const PickItem& item);
    void remove(std::uint32_t item);

    PickItem& operator[](std::uint32_t item) { return m_items[item]; }
    const PickItem& operator[](std::uint32_t item) const { return m_items[item]; }

    /** True when a clip plane cuts the point of that item away. */
    bool isClipped(std::uint32_t item, const SbVec3f& point) const;

private:
    std::vector<PickItem> m_items;
    std::vector<std::uint32_t> m_free;
};

} // namespace vexel
