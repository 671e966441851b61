#include <vexel/render/detail/SegmentBatches.h>

#include <algorithm>
#include <tuple>

namespace vexel {

namespace {

bool isDrawnBefore(const PacketBatch* a, const PacketBatch* b)
{
    const auto rank = [](const PacketBatch* batch) {
        const BatchKey& key = batch->key();
        return std::make_tuple(key.transparent, key.state, key.shiny, key.mirrored, key.geometry->id());
    };
    return rank(a) < rank(b);
}

} // namespace

Bounds SegmentBatches::bounds() const
{
    Bounds result = m_boxes.total();
    for (const PacketBatch* batch : m_fresh)
        result.extend(batch->boxes().total());
    return result;
}

void SegmentBatches::insert(PacketBatch* batch)
{
    batch->isPlaced = false;
    batch->position = m_fresh.size();
    m_fresh.push_back(batch);
}

void SegmentBatches::erase(PacketBatch* batch)
{
    if (!batch->isPlaced) {
        m_fresh.back()->position = batch->position;
        m_fresh[batch->position] = m_fresh.back();
        m_fresh.pop_back();
        return;
    }
    m_order[batch->position] = nullptr;
    m_boxes.set(batch->position, Bounds());
    m_hasGaps = true;
}

void SegmentBatches::boundsChanged(const PacketBatch& batch)
{
    if (batch.isPlaced)
        m_boxes.set(batch.position, batch.boxes().total());
}

void SegmentBatches::prepare()
{
    if (m_fresh.empty() && !m_hasGaps)
        return;
    m_order.erase(std::remove(m_order.begin(), m_order.end(), nullptr), m_order.end());
    std::sort(m_fresh.begin(), m_fresh.end(), isDrawnBefore);
    const auto middle = m_order.insert(m_order.end(), m_fresh.begin(), m_fresh.end());
    std::inplace_merge(m_order.begin(), middle, m_order.end(), isDrawnBefore);
    m_fresh.clear();
    m_hasGaps = false;
    std::vector<Bounds> boxes;
    boxes.reserve(m_order.size());
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        m_order[i]->position = i;
        m_order[i]->isPlaced = true;
        boxes.push_back(m_order[i]->boxes().total());
    }
    m_boxes.assign(std::move(boxes));
}

} // namespace vexel
