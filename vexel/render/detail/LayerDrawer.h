#pragma once

#include <unordered_map>
#include <vector>

#include <vexel/render/RenderOptions.h>
#include <vexel/render/detail/DepthPeeler.h>
#include <vexel/render/detail/InstanceMirror.h>
#include <vexel/render/detail/PacketDrawer.h>
#include <vexel/render/detail/SortedCommands.h>

namespace vexel {

/** What a renderer keeps of one draw list from frame to frame. */
struct ListCache {
    struct Segment {
        DrawPlan plan;
        SortedCommands sorted;
    };

    InstanceMirror mirror;
    std::unordered_map<std::uint32_t, Segment> segments;

    void release();
};

/** Draws some segments of a list one after the other: first what is opaque of all of them, then what is transparent. */
class LayerDrawer {
public:
    explicit LayerDrawer(PacketDrawer& packets) : m_packets(packets) {}

    void draw(const DrawListData& list, ListCache& cache, const std::vector<std::uint32_t>& segments,
              const RenderView& view, const RenderOptions& options);
    void release() { m_peeler.release(); }

private:
    void drawTransparent(const DrawListData& list, ListCache& cache, ListCache::Segment& segment,
                         const RenderView& view, const RenderOptions& options);

    PacketDrawer& m_packets;
    DepthPeeler m_peeler;
};

} // namespace vexel
