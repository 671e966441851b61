#pragma once

#include <cstdint>
#include <unordered_map>

#include <vexel/base/SbBasic.h>

namespace vexel {

/** Tells apart what a node was before and after it changed; nodes go by their numbers, as addresses are used again. */
class ChangeStamps {
public:
    void touch(SbUniqueId node) { m_stamps[node] = ++m_last; }
    /** The newest stamp there is. */
    std::uint64_t last() const { return m_last; }
    std::uint64_t of(SbUniqueId node) const
    {
        const auto found = m_stamps.find(node);
        return found == m_stamps.end() ? 0 : found->second;
    }

private:
    std::unordered_map<SbUniqueId, std::uint64_t> m_stamps;
    std::uint64_t m_last = 0;
};

} // namespace vexel
