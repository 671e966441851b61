#include <vexel/render/DrawList.h>

#include <vexel/render/detail/DrawListData.h>

namespace vexel {

DrawList::DrawList() : m_data(std::make_unique<DrawListData>()) {}

DrawList::~DrawList() = default;

DrawList::Segment DrawList::addSegment(RenderSegment segment, Segment before)
{
    return m_data->addSegment(std::move(segment), before);
}

void DrawList::setSegment(Segment segment, RenderSegment description)
{
    m_data->setSegment(segment, std::move(description));
}

void DrawList::removeSegment(Segment segment)
{
    m_data->removeSegment(segment);
}

DrawList::Packet DrawList::add(Segment segment, const RenderPacket& packet)
{
    return m_data->add(segment, packet);
}

void DrawList::remove(Packet packet)
{
    m_data->remove(packet);
}

void DrawList::setMatrix(Packet packet, const SbMatrix& matrix)
{
    InstanceRecord record = m_data->record(packet);
    record.setMatrix(matrix);
    m_data->change(packet, record, true);
}

void DrawList::setMaterial(Packet packet, const RenderMaterial& material)
{
    InstanceRecord record = m_data->record(packet);
    record.setMaterial(material);
    m_data->change(packet, record, false);
}

void DrawList::setState(Packet packet, const RenderState& state)
{
    m_data->setState(packet, state);
}

void DrawList::setGeometry(Packet packet, std::shared_ptr<const RenderGeometry> geometry)
{
    m_data->setGeometry(packet, std::move(geometry));
}

std::uint64_t DrawList::tag(Packet packet) const
{
    return m_data->tag(packet);
}

Bounds DrawList::bounds(Packet packet) const
{
    return m_data->bounds(packet);
}

Bounds DrawList::bounds() const
{
    return m_data->bounds();
}

std::size_t DrawList::size() const
{
    return m_data->size();
}

} // namespace vexel
