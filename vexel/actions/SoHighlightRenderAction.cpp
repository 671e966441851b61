#include <vexel/actions/SoHighlightRenderAction.h>

#include <vexel/actions/SoSearchAction.h>
#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/render/RenderHighlight.h>
#include <vexel/render/Renderer.h>

using namespace vexel;

SoHighlightRenderAction::SoHighlightRenderAction(const SbViewportRegion& region, const SbColor& color, float lineWidth)
    : SoGLRenderAction(region), m_color(color), m_lineWidth(lineWidth)
{
}

void SoHighlightRenderAction::drawOnTop(CompiledScene& scene, Renderer& renderer, const RenderView& view, SoNode& root)
{
    if (!m_isVisible)
        return;
    SoSearchAction search;
    search.setType(SoSelection::getClassTypeId());
    search.setInterest(SoSearchAction::FIRST);
    search.apply(&root);
    if (!search.getPath())
        return;
    const auto& selection = *static_cast<SoSelection*>(static_cast<SoNode*>(search.getPath()->getTail()));
    RenderHighlight highlight = getHighlight();
    highlight.color = SbVec4f(m_color[0], m_color[1], m_color[2], 1);
    highlight.width = m_lineWidth;
    for (int i = 0; i < selection.getNumSelected(); ++i)
        renderer.drawHighlight(scene.tree().drawList(), scene.tree().packetsBelow(*selection.getPath(i)), highlight,
                               view);
}
