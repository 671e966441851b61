#include <vexel/render/detail/BoundsPyramid.h>

namespace vexel {

Bounds BoundsPyramid::total() const
{
    if (m_leaves.empty())
        return Bounds();
    return m_levels.empty() ? m_leaves.front() : m_levels.back().front();
}

Bounds BoundsPyramid::unite(std::size_t height, std::size_t parent) const
{
    const std::vector<Bounds>& children = level(height - 1);
    const std::size_t end = std::min((parent + 1) * Fan, children.size());
    Bounds bounds;
    for (std::size_t child = parent * Fan; child < end; ++child)
        bounds.extend(children[child]);
    return bounds;
}

void BoundsPyramid::refit(std::size_t index)
{
    for (std::size_t height = 1; height <= m_levels.size(); ++height) {
        index /= Fan;
        m_levels[height - 1][index] = unite(height, index);
    }
}

void BoundsPyramid::rebuildLevels()
{
    m_levels.clear();
    for (std::size_t count = m_leaves.size(); count > 1;) {
        count = (count + Fan - 1) / Fan;
        m_levels.emplace_back(count);
        for (std::size_t node = 0; node < count; ++node)
            m_levels.back()[node] = unite(m_levels.size(), node);
    }
}

void BoundsPyramid::push(const Bounds& bounds)
{
    m_leaves.push_back(bounds);
    std::size_t count = m_leaves.size();
    for (std::size_t height = 1; count > 1; ++height) {
        count = (count + Fan - 1) / Fan;
        if (height > m_levels.size())
            m_levels.emplace_back();
        m_levels[height - 1].resize(count);
    }
    // A level that has just come into being takes its first node from below, not only the new leaf's chain.
    refit(m_leaves.size() - 1);
}

void BoundsPyramid::set(std::size_t index, const Bounds& bounds)
{
    m_leaves[index] = bounds;
    refit(index);
}

void BoundsPyramid::pop()
{
    m_leaves.pop_back();
    std::size_t count = m_leaves.size();
    std::size_t height = 0;
    for (; count > 1; ++height) {
        count = (count + Fan - 1) / Fan;
        m_levels[height].resize(count);
    }
    m_levels.resize(height);
    if (!m_leaves.empty())
        refit(m_leaves.size() - 1);
}

void BoundsPyramid::assign(std::vector<Bounds> leaves)
{
    m_leaves = std::move(leaves);
    rebuildLevels();
}

} // namespace vexel
