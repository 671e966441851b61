#pragma once

#include <cstddef>
#include <vector>

#include <vexel/render/detail/Frustum.h>

namespace vexel {

/**
 * Bounding volume tree over a sequence of boxes: every eight neighbours share a parent box, level upon level.
 *
 * The tree needs no pointers, and what a query finds are ranges of the sequence, which is what an instanced draw call
 * takes. It culls as well as neighbours in the sequence are neighbours in space, so its owner sorts now and then.
 */
class BoundsPyramid {
public:
    std::size_t size() const { return m_leaves.size(); }
    const Bounds& operator[](std::size_t index) const { return m_leaves[index]; }

    /** Box around everything. */
    Bounds total() const;

    void push(const Bounds& bounds);
    void set(std::size_t index, const Bounds& bounds);
    void pop();

    /** Replaces the whole sequence. */
    void assign(std::vector<Bounds> leaves);

    /** Calls `emit(first, count)` for ascending, disjoint ranges that hold every box which may be in the frustum. */
    template <typename Emit>
    void findVisible(const Frustum& frustum, Emit&& emit) const
    {
        if (!m_leaves.empty())
            descend(frustum, m_levels.size(), 0, emit);
    }

private:
    static constexpr std::size_t Fan = 8;

    const std::vector<Bounds>& level(std::size_t height) const { return height ? m_levels[height - 1] : m_leaves; }
    Bounds unite(std::size_t height, std::size_t parent) const;
    void refit(std::size_t index);
    void rebuildLevels();

    template <typename Emit>
    void descend(const Frustum& frustum, std::size_t height, std::size_t node, Emit&& emit) const
    {
        const Frustum::Side side = frustum.classify(level(height)[node]);
        if (side == Frustum::Side::Outside)
            return;
        std::size_t span = 1;
        for (std::size_t i = 0; i < height; ++i)
            span *= Fan;
        if (height == 0 || side == Frustum::Side::Inside) {
            const std::size_t first = node * span;
            emit(first, std::min(span, m_leaves.size() - first));
            return;
        }
        const std::size_t end = std::min((node + 1) * Fan, level(height - 1).size());
        for (std::size_t child = node * Fan; child < end; ++child)
            descend(frustum, height - 1, child, emit);
    }

    std::vector<Bounds> m_leaves;
    std::vector<std::vector<Bounds>> m_levels; // from the leaves' parents to the root; empty for a single leaf
};

} // namespace vexel
