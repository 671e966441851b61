#include <vexel/render/detail/DrawPlan.h>

#include <vexel/render/detail/DrawListData.h>

namespace vexel {

namespace {

/** A gap of so few hidden packets is drawn over rather than split a call at it. */
constexpr std::uint32_t CheapGap = 8;

} // namespace

void DrawPlan::addVisible(const PacketBatch& batch, const Frustum& frustum, bool whole)
{
    std::vector<DrawCommand>& commands = batch.key().transparent ? m_transparent : m_opaque;
    const std::uint32_t base = batch.firstRecord();
    if (whole) {
        commands.push_back({&batch, base, batch.size()});
        return;
    }
    const std::size_t start = commands.size();
    batch.boxes().findVisible(frustum, [&](std::size_t first, std::size_t count) {
        const auto from = base + static_cast<std::uint32_t>(first);
        const auto amount = static_cast<std::uint32_t>(count);
        if (commands.size() > start && from - commands.back().first - commands.back().count <= CheapGap)
            commands.back().count = from + amount - commands.back().first;
        else
            commands.push_back({&batch, from, amount});
    });
}

void DrawPlan::update(const DrawListData& list, std::uint32_t segment, const Camera& camera)
{
    if (m_layoutVersion == list.layoutVersion() && m_camera == camera)
        return;
    m_layoutVersion = list.layoutVersion();
    m_camera = camera;
    m_opaque.clear();
    m_transparent.clear();
    const Frustum frustum = Frustum::ofClipMatrix(camera.worldToClip);
    list.segment(segment).findVisible(frustum, [&](const PacketBatch& batch) {
        if (list.state(batch).style.draw == RenderStyle::Draw::Invisible)
            return;
        addVisible(batch, frustum, batch.size() == 1);
    });
}

} // namespace vexel
