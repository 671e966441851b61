#pragma once

#include <vector>

#include <vexel/render/detail/Camera.h>
#include <vexel/render/detail/PacketBatch.h>

namespace vexel {

class DrawListData;
class SegmentBatches;

/** A run of packets of one batch that is in sight. */
struct DrawCommand {
    const PacketBatch* batch;
    std::uint32_t first; ///< number of the first instance record
    std::uint32_t count;
};

/** What of one segment is in sight of one camera, in drawing order; kept from frame to frame while neither changes. */
class DrawPlan {
public:
    /** Brings the plan up to date. */
    void update(const DrawListData& list, std::uint32_t segment, const Camera& camera);

    const Camera& camera() const { return m_camera; }
    const std::vector<DrawCommand>& opaque() const { return m_opaque; }
    const std::vector<DrawCommand>& transparent() const { return m_transparent; }

private:
    void addVisible(const PacketBatch& batch, const Frustum& frustum, bool whole);

    std::uint64_t m_layoutVersion = 0;
    Camera m_camera{RenderView()};
    std::vector<DrawCommand> m_opaque;
    std::vector<DrawCommand> m_transparent;
};

} // namespace vexel
