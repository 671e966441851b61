#include <vexel/render/detail/DrawListData.h>

#include <algorithm>

#include <vexel/render/detail/ResourceTrash.h>

namespace vexel {

namespace {

bool showsThrough(const RenderTexture& texture)
{
    return texture.image && texture.image->hasAlpha() && texture.model != RenderTexture::Model::Bump;
}

} // namespace

DrawListData::DrawListData() : m_id(ResourceTrash::newId()) {}

DrawListData::~DrawListData()
{
    ResourceTrash::discard(m_id);
}

std::uint32_t DrawListData::addSegment(RenderSegment segment, std::uint32_t before)
{
    const auto free = std::find(m_segments.begin(), m_segments.end(), nullptr);
    const auto id = static_cast<std::uint32_t>(free - m_segments.begin());
    auto made = std::make_unique<SegmentBatches>(std::move(segment));
    if (free == m_segments.end())
        m_segments.push_back(std::move(made));
    else
        *free = std::move(made);
    m_segmentOrder.insert(std::find(m_segmentOrder.begin(), m_segmentOrder.end(), before), id);
    ++m_layoutVersion;
    return id;
}

void DrawListData::setSegment(std::uint32_t segment, RenderSegment description)
{
    m_segments[segment]->description = std::move(description);
    ++m_layoutVersion;
}

void DrawListData::removeSegment(std::uint32_t segment)
{
    m_segments[segment]->prepare();
    const std::vector<PacketBatch*> batches = m_segments[segment]->batches();
    for (const PacketBatch* batch : batches) {
        for (std::uint32_t left = batch->size(); left > 0; --left)
            remove(batch->handle(left - 1));
    }
    m_segments[segment].reset();
    m_segmentOrder.erase(std::find(m_segmentOrder.begin(), m_segmentOrder.end(), segment));
    ++m_layoutVersion;
}

BatchKey DrawListData::keyFor(const BatchKey& similar, const InstanceRecord& record) const
{
    const RenderState& state = m_states[similar.state];
    BatchKey key = similar;
    key.transparent = state.style.transparency != RenderStyle::Transparency::None &&
                      (record.isTransparent() || key.geometry->hasTransparentColors() ||
                       std::any_of(state.textures.begin(), state.textures.end(), showsThrough));
    key.shiny = state.style.lit && record.isShiny();
    key.mirrored = record.isMirrored();
    return key;
}

void DrawListData::insert(std::uint32_t packet, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry,
                          const InstanceRecord& record)
{
    std::unique_ptr<PacketBatch>& batch = m_batches[key];
    if (!batch) {
        batch = std::make_unique<PacketBatch>(m_arena, key, std::move(geometry));
        m_states.retain(key.state);
        m_segments[key.segment]->insert(batch.get());
    }
    m_packets[packet].batch = batch.get();
    m_packets[packet].index = batch->size();
    batch->append(packet, record);
    if (batch->isDisordered() && !batch->awaitsSorting) {
        batch->awaitsSorting = true;
        m_disordered.push_back(batch.get());
    }
    m_segments[key.segment]->boundsChanged(*batch);
    ++m_layoutVersion;
}

void DrawListData::take(std::uint32_t packet)
{
    PacketBatch* batch = m_packets[packet].batch;
    const BatchKey key = batch->key();
    const std::uint32_t index = m_packets[packet].index;
    const std::uint32_t moved = batch->removeAt(index);
    ++m_layoutVersion;
    if (batch->size() > 0) {
        if (index < batch->size())
            m_packets[moved].index = index;
        m_segments[key.segment]->boundsChanged(*batch);
        return;
    }
    if (batch->awaitsSorting)
        m_disordered.erase(std::find(m_disordered.begin(), m_disordered.end(), batch));
    m_segments[key.segment]->erase(batch);
    m_batches.erase(key);
    m_states.release(key.state);
}

std::uint32_t DrawListData::add(std::uint32_t segment, const RenderPacket& packet)
{
    auto handle = static_cast<std::uint32_t>(m_packets.size());
    if (m_freePackets.empty()) {
        m_packets.emplace_back();
    } else {
        handle = m_freePackets.back();
        m_freePackets.pop_back();
    }
    m_packets[handle].tag = packet.tag;
    InstanceRecord record;
    record.setMatrix(packet.matrix);
    record.setMaterial(packet.material);
    const std::uint32_t state = m_states.acquire(packet.state);
    insert(handle, keyFor({packet.geometry.get(), state, segment, false, false, false}, record), packet.geometry,
           record);
    m_states.release(state);
    return handle;
}

void DrawListData::remove(std::uint32_t packet)
{
    take(packet);
    m_packets[packet].batch = nullptr;
    m_freePackets.push_back(packet);
}

void DrawListData::rehome(std::uint32_t packet, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry,
                          const InstanceRecord& record)
{
    // The last packet of a batch takes the state with it, unless someone else holds it.
    m_states.retain(key.state);
    take(packet);
    insert(packet, key, std::move(geometry), record);
    m_states.release(key.state);
}

void DrawListData::change(std::uint32_t packet, const InstanceRecord& record, bool moved)
{
    PacketBatch& batch = *m_packets[packet].batch;
    const BatchKey key = keyFor(batch.key(), record);
    if (!(key == batch.key())) {
        const InstanceRecord copy = record;
        rehome(packet, key, std::shared_ptr<const RenderGeometry>(batch.geometry()), copy);
        return;
    }
    const std::uint32_t index = m_packets[packet].index;
    batch.replace(index, record);
    if (!moved)
        return;
    batch.setBox(index);
    m_segments[key.segment]->boundsChanged(batch);
    ++m_layoutVersion;
}

void DrawListData::setState(std::uint32_t packet, const RenderState& state)
{
    const InstanceRecord copy = record(packet);
    BatchKey key = m_packets[packet].batch->key();
    const std::uint32_t id = m_states.acquire(state);
    if (id != key.state) {
        key.state = id;
        rehome(packet, keyFor(key, copy), std::shared_ptr<const RenderGeometry>(batch(packet).geometry()), copy);
    }
    m_states.release(id);
}

void DrawListData::setGeometry(std::uint32_t packet, std::shared_ptr<const RenderGeometry> geometry)
{
    const InstanceRecord copy = record(packet);
    BatchKey key = m_packets[packet].batch->key();
    key.geometry = geometry.get();
    rehome(packet, keyFor(key, copy), std::move(geometry), copy);
}

const InstanceRecord& DrawListData::record(std::uint32_t packet) const
{
    return m_packets[packet].batch->record(m_packets[packet].index);
}

Bounds DrawListData::bounds(std::uint32_t packet) const
{
    return m_packets[packet].batch->boxes()[m_packets[packet].index];
}

Bounds DrawListData::bounds() const
{
    Bounds result;
    for (const std::uint32_t segment : m_segmentOrder) {
        if (m_segments[segment]->description.kind == RenderSegment::Kind::Scene)
            result.extend(m_segments[segment]->bounds());
    }
    return result;
}

void DrawListData::prepare()
{
    for (PacketBatch* batch : m_disordered) {
        batch->sortInSpace([this](std::uint32_t packet, std::uint32_t index) { m_packets[packet].index = index; });
        batch->awaitsSorting = false;
    }
    m_disordered.clear();
    for (const std::uint32_t segment : m_segmentOrder)
        m_segments[segment]->prepare();
}

} // namespace vexel
