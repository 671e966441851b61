#include <vexel/actions/SoHaloHighlightRenderAction.h>

#include <vexel/render/RenderHighlight.h>

vexel::RenderHighlight SoHaloHighlightRenderAction::getHighlight() const
{
    vexel::RenderHighlight highlight;
    highlight.kind = vexel::RenderHighlight::Kind::Halo;
    highlight.onTop = m_isAlwaysVisible;
    return highlight;
}
