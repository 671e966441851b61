#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <vexel/render/RenderPacket.h>
#include <vexel/render/detail/SegmentBatches.h>
#include <vexel/render/detail/StateTable.h>

namespace vexel {

/** Inside of a DrawList: which packet is where in which batch. */
class DrawListData {
public:
    DrawListData();
    ~DrawListData();
    DrawListData(const DrawListData&) = delete;
    DrawListData& operator=(const DrawListData&) = delete;

    std::uint32_t addSegment(RenderSegment segment, std::uint32_t before);
    void setSegment(std::uint32_t segment, RenderSegment description);
    void removeSegment(std::uint32_t segment);

    std::uint32_t add(std::uint32_t segment, const RenderPacket& packet);
    void remove(std::uint32_t packet);
    void change(std::uint32_t packet, const InstanceRecord& record, bool moved);
    void setState(std::uint32_t packet, const RenderState& state);
    void setGeometry(std::uint32_t packet, std::shared_ptr<const RenderGeometry> geometry);

    const InstanceRecord& record(std::uint32_t packet) const;
    const PacketBatch& batch(std::uint32_t packet) const { return *m_packets[packet].batch; }
    std::uint32_t recordNumber(std::uint32_t packet) const
    {
        return batch(packet).firstRecord() + m_packets[packet].index;
    }
    std::uint64_t tag(std::uint32_t packet) const { return m_packets[packet].tag; }
    Bounds bounds(std::uint32_t packet) const;
    Bounds bounds() const;
    std::size_t size() const { return m_packets.size() - m_freePackets.size(); }

    /** Sorts what is out of order. To be called before the functions below. */
    void prepare();

    const std::vector<std::uint32_t>& segmentOrder() const { return m_segmentOrder; }
    const SegmentBatches& segment(std::uint32_t segment) const { return *m_segments[segment]; }
    const RenderState& state(const PacketBatch& batch) const { return m_states[batch.key().state]; }
    const InstanceArena& arena() const { return m_arena; }

    /** Changes whenever packets come, go, move, or change their batch; not with colours. */
    std::uint64_t layoutVersion() const { return m_layoutVersion; }
    std::uint64_t id() const { return m_id; }

private:
    struct Packet {
        PacketBatch* batch;
        std::uint32_t index;
        std::uint64_t tag;
    };

    BatchKey keyFor(const BatchKey& similar, const InstanceRecord& record) const;
    void insert(std::uint32_t packet, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry,
                const InstanceRecord& record);
    void take(std::uint32_t packet);
    void rehome(std::uint32_t packet, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry,
                const InstanceRecord& record);

    InstanceArena m_arena;
    StateTable m_states;
    std::vector<Packet> m_packets;
    std::vector<std::uint32_t> m_freePackets;
    std::unordered_map<BatchKey, std::unique_ptr<PacketBatch>, BatchKeyHash> m_batches;
    std::vector<PacketBatch*> m_disordered;
    std::vector<std::unique_ptr<SegmentBatches>> m_segments;
    std::vector<std::uint32_t> m_segmentOrder;
    std::uint64_t m_layoutVersion = 1;
    std::uint64_t m_id;
};

} // namespace vexel
