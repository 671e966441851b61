#include <vexel/render/Renderer.h>

#include <algorithm>

#include <epoxy/gl.h>

#include <vexel/render/RenderGeometry.h>
#include <vexel/render/RenderSurroundings.h>
#include <vexel/render/detail/BackgroundDrawer.h>
#include <vexel/render/detail/BoxOutline.h>
#include <vexel/render/detail/DrawListData.h>
#include <vexel/render/detail/HighlightDrawer.h>
#include <vexel/render/detail/LayerDrawer.h>
#include <vexel/render/detail/ResourceTrash.h>

namespace vexel {

struct Renderer::Data {
    ResourceTrash trash;
    GeometryStore geometries;
    ProgramCache programs;
    TextureStore textures;
    SurroundingsStore surroundings;
    PacketDrawer packets{geometries, programs, textures, surroundings};
    LayerDrawer layers{packets};
    HighlightDrawer highlights{packets};
    BackgroundDrawer backgrounds;
    std::unordered_map<std::uint64_t, ListCache> lists;

    ListCache& prepare(DrawList& list);
    void emptyTrash();
};

namespace {

/** Leaves the context as its owner expects it, whatever happened in between. */
class StateScope {
public:
    StateScope()
    {
        glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &m_framebuffer);
        glDisable(GL_SCISSOR_TEST);
        glDisable(GL_STENCIL_TEST);
        glDisable(GL_BLEND);
        glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    }

    ~StateScope()
    {
        for (int i = 0; i < RenderSurroundings::MaxClipPlanes; ++i)
            glDisable(GL_CLIP_DISTANCE0 + i);
        for (const GLenum capability : {GL_DEPTH_TEST, GL_CULL_FACE, GL_POLYGON_OFFSET_FILL, GL_PROGRAM_POINT_SIZE})
            glDisable(capability);
        glDepthMask(GL_TRUE);
        glDepthFunc(GL_LESS);
        glDepthRange(0, 1);
        glFrontFace(GL_CCW);
        glCullFace(GL_BACK);
        glActiveTexture(GL_TEXTURE0);
        glBindVertexArray(0);
        glUseProgram(0);
        glBindBuffer(GL_ARRAY_BUFFER, 0);
        glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    }

    StateScope(const StateScope&) = delete;
    StateScope& operator=(const StateScope&) = delete;

private:
    GLint m_framebuffer = 0;
};

std::vector<DrawCommand> commandsFor(const DrawListData& list, const std::vector<DrawList::Packet>& packets)
{
    std::vector<DrawCommand> commands;
    commands.reserve(packets.size());
    for (const DrawList::Packet packet : packets) {
        const PacketBatch& batch = list.batch(packet);
        commands.push_back({&batch, list.recordNumber(packet), 1});
    }
    std::sort(commands.begin(), commands.end(), [](const DrawCommand& a, const DrawCommand& b) {
        return a.batch != b.batch ? std::less<>()(a.batch, b.batch) : a.first < b.first;
    });
    std::vector<DrawCommand> runs;
    for (const DrawCommand& command : commands) {
        if (!runs.empty() && runs.back().batch == command.batch &&
            runs.back().first + runs.back().count == command.first)
            ++runs.back().count;
        else
            runs.push_back(command);
    }
    return runs;
}

} // namespace

ListCache& Renderer::Data::prepare(DrawList& list)
{
    emptyTrash();
    list.data().prepare();
    ListCache& cache = lists[list.data().id()];
    cache.mirror.update(list.data().arena());
    return cache;
}

void Renderer::Data::emptyTrash()
{
    for (const std::uint64_t id : trash.take()) {
        const auto list = lists.find(id);
        if (list != lists.end()) {
            list->second.release();
            lists.erase(list);
        } else if (!geometries.drop(id) && !textures.drop(id)) {
            surroundings.drop(id);
        }
    }
}

Renderer::Renderer() : m_data(std::make_unique<Data>()) {}

Renderer::~Renderer() = default;

void Renderer::draw(DrawList& list, const RenderView& view, const RenderOptions& options)
{
    const StateScope scope;
    ListCache& cache = m_data->prepare(list);
    if (options.clear)
        m_data->backgrounds.draw(list.background, view, m_data->textures);
    drawScene(list, cache, view, options);
    if (view.frame)
        m_data->backgrounds.drawFrame(*view.frame, view.viewport);
}

void Renderer::drawScene(DrawList& list, ListCache& cache, const RenderView& view, const RenderOptions& options)
{

    std::vector<std::uint32_t> scene;
    std::vector<std::uint32_t> annotations;
    for (const std::uint32_t segment : list.data().segmentOrder()) {
        const bool on_top = list.data().segment(segment).description.kind == RenderSegment::Kind::Annotation;
        (on_top ? annotations : scene).push_back(segment);
    }
    m_data->layers.draw(list.data(), cache, scene, view, options);
    if (annotations.empty())
        return;
    {
        const ScissorScope scissor(view.viewport);
        glDepthMask(GL_TRUE);
        glClear(GL_DEPTH_BUFFER_BIT);
    }
    m_data->layers.draw(list.data(), cache, annotations, view, options);
}

void Renderer::drawHighlight(DrawList& list, const std::vector<DrawList::Packet>& packets,
                             const RenderHighlight& highlight, const RenderView& view)
{
    if (packets.empty())
        return;
    const StateScope scope;
    if (highlight.kind == RenderHighlight::Kind::Box) {
        Bounds total;
        for (const DrawList::Packet packet : packets)
            total.extend(list.bounds(packet));
        BoxOutline box(total);
        ListCache& cache = m_data->prepare(box.list());
        m_data->highlights.drawLines(box.list().data(), commandsFor(box.list().data(), {box.packet()}),
                                     cache.mirror.buffer(), highlight, view);
        return;
    }
    ListCache& cache = m_data->prepare(list);
    const std::vector<DrawCommand> commands = commandsFor(list.data(), packets);
    if (highlight.kind == RenderHighlight::Kind::Halo)
        m_data->highlights.drawHalo(list.data(), commands, cache.mirror.buffer(), highlight, view);
    else
        m_data->highlights.drawLines(list.data(), commands, cache.mirror.buffer(), highlight, view);
}

void Renderer::release()
{
    for (auto& [id, cache] : m_data->lists)
        cache.release();
    m_data->lists.clear();
    m_data->geometries.clear();
    m_data->programs.clear();
    m_data->textures.clear();
    m_data->surroundings.clear();
    m_data->packets.clear();
    m_data->layers.release();
    m_data->highlights.release();
    m_data->backgrounds.release();
}

} // namespace vexel
