#include <vexel/actions/SoBoxHighlightRenderAction.h>

#include <vexel/render/RenderHighlight.h>

vexel::RenderHighlight SoBoxHighlightRenderAction::getHighlight() const
{
    vexel::RenderHighlight highlight;
    highlight.kind = vexel::RenderHighlight::Kind::Box;
    highlight.linePattern = m_linePattern;
    return highlight;
}
