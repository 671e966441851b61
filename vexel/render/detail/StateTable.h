#pragma once

#include <unordered_map>
#include <vector>

#include <vexel/render/RenderState.h>

namespace vexel {

/** Gives equal render states one small number for as long as someone uses it. */
class StateTable {
public:
    std::uint32_t acquire(const RenderState& state);
    void retain(std::uint32_t id) { ++m_entries[id].users; }
    void release(std::uint32_t id);

    const RenderState& operator[](std::uint32_t id) const { return *m_entries[id].state; }

private:
    struct Entry {
        const RenderState* state;
        std::uint32_t users;
    };

    std::unordered_map<RenderState, std::uint32_t, RenderStateHash> m_ids;
    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_free;
};

} // namespace vexel
