#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include <vexel/base/VexelApi.h>
#include <vexel/render/RenderBackground.h>
#include <vexel/render/RenderPacket.h>
#include <vexel/render/RenderSegment.h>
#include <vexel/render/detail/Bounds.h>

namespace vexel {

class DrawListData;

/**
 * Everything that a view shows, ready to be drawn: packets in ordered segments.
 *
 * Packets of equal geometry and state are drawn together however many they are, so adding, removing and changing one
 * costs the same in a small list and in a large one. A Renderer draws the list; it may be drawn by several, in several
 * contexts. Handles are numbers that may be given out again after removal. Not thread-safe.
 */
class VEXEL_API DrawList {
public:
    using Packet = std::uint32_t;
    using Segment = std::uint32_t;
    static constexpr Segment End = ~Segment(0);

    DrawList();
    ~DrawList();
    DrawList(const DrawList&) = delete;
    DrawList& operator=(const DrawList&) = delete;

    /** Inserts a segment in front of another one, or at the end. */
    Segment addSegment(RenderSegment segment, Segment before = End);
    /** Replaces camera and callback; the kind must stay. */
    void setSegment(Segment segment, RenderSegment description);
    /** Removes a segment and all its packets. */
    void removeSegment(Segment segment);

    Packet add(Segment segment, const RenderPacket& packet);
    void remove(Packet packet);

    void setMatrix(Packet packet, const SbMatrix& matrix);
    void setMaterial(Packet packet, const RenderMaterial& material);
    void setState(Packet packet, const RenderState& state);
    void setGeometry(Packet packet, std::shared_ptr<const RenderGeometry> geometry);

    std::uint64_t tag(Packet packet) const;
    /** Box in the world, from the geometry's box: never too small. */
    Bounds bounds(Packet packet) const;
    /** Box around everything in Scene segments. */
    Bounds bounds() const;
    /** Number of packets. */
    std::size_t size() const;

    RenderBackground background;

    /** For the renderers. */
    DrawListData& data() const { return *m_data; }

private:
    std::unique_ptr<DrawListData> m_data;
};

} // namespace vexel
