#pragma once

#include <memory>
#include <vector>

#include <vexel/base/VexelApi.h>
#include <vexel/render/DrawList.h>
#include <vexel/render/RenderHighlight.h>
#include <vexel/render/RenderOptions.h>
#include <vexel/render/RenderView.h>

namespace vexel {

struct ListCache;

/**
 * Draws lists with one OpenGL context (3.3 core or newer), into whatever framebuffer is bound.
 *
 * Keeps what it has uploaded until the shapes, images and lists are gone. One renderer belongs to one context, which
 * must be current in every call. After drawing, the framebuffer that was bound is bound again; other OpenGL state is
 * as a new context has it, as far as the renderer uses it.
 */
class VEXEL_API Renderer {
public:
    Renderer();

    /** Frees nothing on the graphics card: the context may be gone already, and takes everything with it. */
    ~Renderer();
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    void draw(DrawList& list, const RenderView& view, const RenderOptions& options = {});

    /** Marks packets on top of a frame that was drawn with the same view. */
    void drawHighlight(DrawList& list, const std::vector<DrawList::Packet>& packets, const RenderHighlight& highlight,
                       const RenderView& view);

    /** Frees everything on the graphics card, for a context that lives longer than this renderer. */
    void release();

private:
    struct Data;
    void drawScene(DrawList& list, ListCache& cache, const RenderView& view, const RenderOptions& options);

    std::unique_ptr<Data> m_data;
};

} // namespace vexel
