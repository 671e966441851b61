#include <vexel/actions/SoLineHighlightRenderAction.h>

#include <vexel/render/RenderHighlight.h>

vexel::RenderHighlight SoLineHighlightRenderAction::getHighlight() const
{
    vexel::RenderHighlight highlight;
    highlight.kind = vexel::RenderHighlight::Kind::Line;
    highlight.linePattern = m_linePattern;
    return highlight;
}
