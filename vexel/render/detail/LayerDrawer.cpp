#include <vexel/render/detail/LayerDrawer.h>

#include <epoxy/gl.h>

#include <vexel/render/detail/DrawListData.h>

namespace vexel {

namespace {

using Transparency = RenderStyle::Transparency;

DrawPass passFor(const RenderOptions& options, ProgramKey::Output output)
{
    DrawPass pass;
    pass.output = output;
    pass.draw = options.draw;
    pass.textures = options.textures;
    pass.lighting = options.lighting;
    return pass;
}

RenderView viewOf(const RenderSegment& segment, const RenderView& view)
{
    if (!segment.view)
        return view;
    RenderView own = *segment.view;
    own.window = view.window;
    if (own.viewport.width == 0 || own.viewport.height == 0)
        own.viewport = view.viewport;
    return own;
}

} // namespace

void ListCache::release()
{
    mirror.release();
    for (auto& [id, segment] : segments)
        segment.sorted.release();
}

void LayerDrawer::draw(const DrawListData& list, ListCache& cache, const std::vector<std::uint32_t>& segments,
                       const RenderView& view, const RenderOptions& options)
{
    const DrawPass pass = passFor(options, ProgramKey::Opaque);
    for (const std::uint32_t id : segments) {
        const RenderSegment& segment = list.segment(id).description;
        const RenderView own = viewOf(segment, view);
        const Camera camera(own);
        m_packets.setCamera(camera);
        if (segment.kind == RenderSegment::Kind::Callback) {
            glEnable(GL_DEPTH_TEST);
            if (segment.callback)
                segment.callback(own);
            continue;
        }
        DrawPlan& plan = cache.segments[id].plan;
        plan.update(list, id, camera);
        glDisable(GL_BLEND);
        m_packets.draw(list, plan.opaque(), cache.mirror.buffer(), pass);
        if (options.transparency == Transparency::None)
            m_packets.draw(list, plan.transparent(), cache.mirror.buffer(), pass);
    }
    for (const std::uint32_t id : segments) {
        if (list.segment(id).description.kind == RenderSegment::Kind::Callback)
            continue;
        ListCache::Segment& segment = cache.segments[id];
        if (!segment.plan.transparent().empty() && options.transparency != Transparency::None)
            drawTransparent(list, cache, segment, viewOf(list.segment(id).description, view), options);
    }
}

void LayerDrawer::drawTransparent(const DrawListData& list, ListCache& cache, ListCache::Segment& segment,
                                  const RenderView& view, const RenderOptions& options)
{
    std::vector<DrawCommand> as_listed;
    std::vector<DrawCommand> by_object;
    std::vector<DrawCommand> by_pixel;
    for (const DrawCommand& command : segment.plan.transparent()) {
        switch (options.transparency.value_or(list.state(*command.batch).style.transparency)) {
        case Transparency::SortedPixel:
            by_pixel.push_back(command);
            break;
        case Transparency::SortedObject:
            by_object.push_back(command);
            break;
        default:
            as_listed.push_back(command);
            break;
        }
    }
    DrawPass pass = passFor(options, ProgramKey::Blended);
    pass.depthWrite = false;
    m_packets.setCamera(segment.plan.camera());
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_packets.draw(list, as_listed, cache.mirror.buffer(), pass);
    if (!by_object.empty()) {
        segment.sorted.update(list.arena(), by_object, segment.plan.camera(), list.layoutVersion());
        m_packets.draw(list, segment.sorted.commands(), segment.sorted.buffer(), pass);
    }
    glDisable(GL_BLEND);
    if (by_pixel.empty())
        return;
    pass.output = ProgramKey::Layer;
    pass.depthWrite = true;
    m_peeler.draw(view.viewport, [&](const RenderViewport& viewport, bool multisampled) {
        RenderView inside = view;
        inside.viewport = viewport;
        m_packets.setCamera(Camera(inside));
        pass.multisampled = multisampled;
        m_packets.draw(list, by_pixel, cache.mirror.buffer(), pass);
    });
}

} // namespace vexel
