#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/render/RenderGeometry.h>
#include <vexel/render/detail/BoundsPyramid.h>
#include <vexel/render/detail/InstanceArena.h>

namespace vexel {

/** What packets must share to be drawn by one instanced call. */
struct BatchKey {
    const RenderGeometry* geometry;
    std::uint32_t state;
    std::uint32_t segment;
    bool transparent;
    bool shiny;
    bool mirrored;

    bool operator==(const BatchKey& other) const
    {
        return geometry == other.geometry && state == other.state && segment == other.segment &&
               transparent == other.transparent && shiny == other.shiny && mirrored == other.mirrored;
    }
};

struct BatchKeyHash {
    std::size_t operator()(const BatchKey& key) const;
};

/** Packets of equal geometry and state: a stretch of instance records, with the handles and boxes in the same order. */
class PacketBatch {
public:
    PacketBatch(InstanceArena& arena, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry);
    ~PacketBatch();
    PacketBatch(const PacketBatch&) = delete;
    PacketBatch& operator=(const PacketBatch&) = delete;

    const BatchKey& key() const { return m_key; }
    const std::shared_ptr<const RenderGeometry>& geometry() const { return m_geometry; }
    std::uint32_t size() const { return static_cast<std::uint32_t>(m_handles.size()); }
    std::uint32_t firstRecord() const { return m_first; }
    const InstanceRecord& record(std::uint32_t index) const { return m_arena[m_first + index]; }
    std::uint32_t handle(std::uint32_t index) const { return m_handles[index]; }
    const BoundsPyramid& boxes() const { return m_boxes; }

    void append(std::uint32_t handle, const InstanceRecord& record);

    /** Fills the gap with the last packet and returns the handle of that one, now at `index`. */
    std::uint32_t removeAt(std::uint32_t index);

    void replace(std::uint32_t index, const InstanceRecord& record);
    void setBox(std::uint32_t index) { m_boxes.set(index, boxOf(record(index))); }

    /** True when so many packets came and went that neighbours in the array are far apart in space. */
    bool isDisordered() const { return m_disorder > 16 && m_disorder > size() / 4; }

    /** Sorts along a space-filling curve; `moved(handle, index)` is called for each packet. */
    template <typename Moved>
    void sortInSpace(Moved&& moved)
    {
        applyOrder(spatialOrder());
        for (std::uint32_t index = 0; index < size(); ++index)
            moved(m_handles[index], index);
    }

    std::size_t position = 0; ///< place in the draw order of its segment, or among those that have none yet
    bool isPlaced = false;
    bool awaitsSorting = false;

private:
    Bounds boxOf(const InstanceRecord& record) const { return m_geometry->bounds().transformed(record.rows); }
    std::vector<std::uint32_t> spatialOrder() const;
    void applyOrder(const std::vector<std::uint32_t>& order);

    InstanceArena& m_arena;
    BatchKey m_key;
    std::shared_ptr<const RenderGeometry> m_geometry;
    std::uint32_t m_first;
    std::uint32_t m_capacity = 1;
    std::uint32_t m_disorder = 0;
    std::vector<std::uint32_t> m_handles;
    BoundsPyramid m_boxes;
};

} // namespace vexel
