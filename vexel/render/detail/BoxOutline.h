#pragma once

#include <vexel/render/DrawList.h>

namespace vexel {

/** A draw list that shows nothing but the twelve edges of one box. */
class BoxOutline {
public:
    explicit BoxOutline(const Bounds& box);

    DrawList& list() { return m_list; }
    DrawList::Packet packet() const { return m_packet; }

private:
    DrawList m_list;
    DrawList::Packet m_packet;
};

} // namespace vexel
