#include <vexel/render/detail/StateTable.h>

namespace vexel {

std::uint32_t StateTable::acquire(const RenderState& state)
{
    const auto found = m_ids.find(state);
    if (found != m_ids.end()) {
        ++m_entries[found->second].users;
        return found->second;
    }
    std::uint32_t id = static_cast<std::uint32_t>(m_entries.size());
    if (m_free.empty()) {
        m_entries.push_back({});
    } else {
        id = m_free.back();
        m_free.pop_back();
    }
    m_entries[id] = {&m_ids.emplace(state, id).first->first, 1};
    return id;
}

void StateTable::release(std::uint32_t id)
{
    if (--m_entries[id].users)
        return;
    m_ids.erase(m_ids.find(*m_entries[id].state));
    m_free.push_back(id);
}

} // namespace vexel
