#pragma once

#include <vexel/actions/SoHighlightRenderAction.h>

/** Marks each selected path with the box around it. */
class VEXEL_API SoBoxHighlightRenderAction : public SoHighlightRenderAction {
    SO_ACTION(SoBoxHighlightRenderAction, SoHighlightRenderAction)
public:
    explicit SoBoxHighlightRenderAction(const SbViewportRegion& region)
        : SoHighlightRenderAction(region, SbColor(1, 0, 0), 3)
    {
    }

protected:
    vexel::RenderHighlight getHighlight() const override;
};
