#include <vexel/render/detail/PacketBatch.h>

#include <algorithm>
#include <numeric>

namespace vexel {

namespace {

/** Spreads ten bits so that two free bits follow each. */
std::uint32_t spread(std::uint32_t bits)
{
    bits = (bits | bits << 16) & 0x030000ffu;
    bits = (bits | bits << 8) & 0x0300f00fu;
    bits = (bits | bits << 4) & 0x030c30c3u;
    return (bits | bits << 2) & 0x09249249u;
}

std::uint32_t curvePosition(const Bounds& box, const Bounds& total)
{
    std::uint32_t code = 0;
    for (int axis = 0; axis < 3; ++axis) {
        const float extent = total.hi[axis] - total.lo[axis];
        const float relative = (0.5f * (box.lo[axis] + box.hi[axis]) - total.lo[axis]) / extent;
        // Also false for a flat or an empty box, where the quotient is not a number.
        const std::uint32_t cell = relative > 0 ? static_cast<std::uint32_t>(std::min(relative, 1.0f) * 1023.0f) : 0;
        code |= spread(cell) << axis;
    }
    return code;
}

} // namespace

std::size_t BatchKeyHash::operator()(const BatchKey& key) const
{
    const std::size_t flags = int(key.transparent) + 2 * int(key.shiny) + 4 * int(key.mirrored);
    const std::size_t small = std::size_t(key.segment) << 35 ^ std::size_t(key.state) << 3 ^ flags;
    return (key.geometry->id() ^ small) * 0x9e3779b97f4a7c15ull >> 7;
}

PacketBatch::PacketBatch(InstanceArena& arena, const BatchKey& key, std::shared_ptr<const RenderGeometry> geometry)
    : m_arena(arena), m_key(key), m_geometry(std::move(geometry)), m_first(arena.allocate(1))
{
}

PacketBatch::~PacketBatch()
{
    m_arena.release(m_first, m_capacity);
}

void PacketBatch::append(std::uint32_t handle, const InstanceRecord& record)
{
    const std::uint32_t index = size();
    if (index == m_capacity) {
        const std::uint32_t grown = m_arena.allocate(m_capacity * 2);
        std::copy_n(&m_arena[m_first], m_capacity, &m_arena[grown]);
        m_arena.release(m_first, m_capacity);
        m_arena.touch(grown, m_capacity);
        m_first = grown;
        m_capacity *= 2;
    }
    m_arena[m_first + index] = record;
    m_arena.touch(m_first + index);
    m_handles.push_back(handle);
    m_boxes.push(boxOf(record));
    ++m_disorder;
}

std::uint32_t PacketBatch::removeAt(std::uint32_t index)
{
    const std::uint32_t last = size() - 1;
    if (index != last) {
        replace(index, record(last));
        m_boxes.set(index, m_boxes[last]);
        m_handles[index] = m_handles[last];
        ++m_disorder;
    }
    m_handles.pop_back();
    m_boxes.pop();
    return index < last ? m_handles[index] : 0;
}

void PacketBatch::replace(std::uint32_t index, const InstanceRecord& record)
{
    m_arena[m_first + index] = record;
    m_arena.touch(m_first + index);
}

std::vector<std::uint32_t> PacketBatch::spatialOrder() const
{
    const Bounds total = m_boxes.total();
    std::vector<std::uint64_t> keys(size());
    for (std::uint32_t index = 0; index < size(); ++index)
        keys[index] = std::uint64_t(curvePosition(m_boxes[index], total)) << 32 | index;
    std::sort(keys.begin(), keys.end());
    return {keys.begin(), keys.end()}; // narrows each key to the index in its lower half
}

void PacketBatch::applyOrder(const std::vector<std::uint32_t>& order)
{
    std::vector<InstanceRecord> records(size());
    std::vector<std::uint32_t> handles(size());
    std::vector<Bounds> boxes(size());
    for (std::uint32_t index = 0; index < size(); ++index) {
        records[index] = record(order[index]);
        handles[index] = m_handles[order[index]];
        boxes[index] = m_boxes[order[index]];
    }
    std::copy(records.begin(), records.end(), &m_arena[m_first]);
    m_arena.touch(m_first, size());
    m_handles = std::move(handles);
    m_boxes.assign(std::move(boxes));
    m_disorder = 0;
}

} // namespace vexel
