#include <vexel/render/detail/InstanceArena.h>

namespace vexel {

namespace {

std::size_t sizeClass(std::uint32_t capacity)
{
    std::size_t result = 0;
    while (capacity >>= 1)
        ++result;
    return result;
}

} // namespace

std::uint32_t InstanceArena::allocate(std::uint32_t capacity)
{
    const std::size_t size_class = sizeClass(capacity);
    if (size_class < m_free.size() && !m_free[size_class].empty()) {
        const std::uint32_t first = m_free[size_class].back();
        m_free[size_class].pop_back();
        return first;
    }
    const std::size_t first = m_records.size();
    m_records.resize(first + capacity);
    return static_cast<std::uint32_t>(first);
}

void InstanceArena::release(std::uint32_t first, std::uint32_t capacity)
{
    const std::size_t size_class = sizeClass(capacity);
    if (size_class >= m_free.size())
        m_free.resize(size_class + 1);
    m_free[size_class].push_back(first);
}

void InstanceArena::touch(std::uint32_t first, std::uint32_t count)
{
    if (m_journal.size() >= JournalLimit) {
        m_dropped += m_journal.size();
        m_journal.clear();
    }
    m_journal.push_back({first, count});
}

bool InstanceArena::changesSince(std::uint64_t position, std::vector<Range>& changes) const
{
    if (position < m_dropped)
        return false;
    std::size_t records = 0;
    for (std::size_t i = position - m_dropped; i < m_journal.size(); ++i) {
        changes.push_back(m_journal[i]);
        records += m_journal[i].count;
    }
    return records <= m_records.size() / 2;
}

} // namespace vexel
