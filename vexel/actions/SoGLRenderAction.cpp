#include <vexel/actions/SoGLRenderAction.h>

#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/render/RenderOptions.h>
#include <vexel/render/Renderer.h>

using namespace vexel;

SoGLRenderAction::SoGLRenderAction(const SbViewportRegion& region)
{
    state().setViewportRegion(region);
}

SoGLRenderAction::~SoGLRenderAction() = default;

void SoGLRenderAction::contextDestroyed()
{
    m_renderer.reset();
}

void SoGLRenderAction::releaseGraphics()
{
    if (m_renderer)
        m_renderer->release();
    m_renderer.reset();
}

RenderOptions SoGLRenderAction::optionsFor(const CompiledScene& scene) const
{
    RenderOptions options;
    options.clear = m_clear;
    options.textures = m_textures;
    options.lighting = m_lighting;
    if (m_drawStyle >= 0)
        options.draw = static_cast<RenderStyle::Draw>(m_drawStyle);
    if (!scene.compiler().hasOwnTransparency())
        options.transparency = static_cast<RenderStyle::Transparency>(m_transparencyType);
    return options;
}

void SoGLRenderAction::visitNode(SoNode& root)
{
    if (SoPath* path = getPathAppliedTo()) {
        // Compiled for each call: paths are drawn once, for a picture of a part, and not again and again.
        CompiledScene scene(*path);
        draw(scene, root);
        return;
    }
    // Held, as a callback may drop the graph while it is drawn.
    const std::shared_ptr<CompiledScene> scene = CompiledScene::of(root);
    draw(*scene, root);
}

void SoGLRenderAction::draw(CompiledScene& scene, SoNode& root)
{
    if (!m_renderer)
        m_renderer = std::make_unique<Renderer>();
    scene.update(getViewportRegion());
    DrawList& list = scene.tree().drawList();
    if (!scene.compiler().hasBackground()) {
        list.background = RenderBackground();
        list.background.color =
            SbVec4f(m_backgroundColor[0], m_backgroundColor[1], m_backgroundColor[2], m_backgroundColor[3]);
    }
    const RenderView view = scene.view();
    scene.compiler().callCallback = [this](SoCallback& callback) { callback.doAction(*this); };
    m_renderer->draw(list, view, optionsFor(scene));
    scene.compiler().callCallback = nullptr;
    drawOnTop(scene, *m_renderer, view, root);
}

void SoGLRenderAction::drawOnTop(CompiledScene&, Renderer&, const RenderView&, SoNode&) {}
