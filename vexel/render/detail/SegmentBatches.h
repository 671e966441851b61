#pragma once

#include <vector>

#include <vexel/render/RenderSegment.h>
#include <vexel/render/detail/BoundsPyramid.h>
#include <vexel/render/detail/PacketBatch.h>

namespace vexel {

/** The batches of one segment in the order in which they are drawn, with a box tree over them. */
class SegmentBatches {
public:
    explicit SegmentBatches(RenderSegment segment) : description(std::move(segment)) {}

    RenderSegment description;

    const std::vector<PacketBatch*>& batches() const { return m_order; }
    Bounds bounds() const;

    void insert(PacketBatch* batch);

    void erase(PacketBatch* batch);

    /** The box of a batch has changed. */
    void boundsChanged(const PacketBatch& batch);

    /** Brings order and tree up to date. */
    void prepare();

    template <typename Emit>
    void findVisible(const Frustum& frustum, Emit&& emit) const
    {
        m_boxes.findVisible(frustum, [&](std::size_t first, std::size_t count) {
            for (std::size_t i = first; i < first + count; ++i)
                emit(*m_order[i]);
        });
    }

private:
    std::vector<PacketBatch*> m_order; // null where a batch is gone until prepare()
    std::vector<PacketBatch*> m_fresh; // not in the order yet
    BoundsPyramid m_boxes;
    bool m_hasGaps = false;
};

} // namespace vexel
