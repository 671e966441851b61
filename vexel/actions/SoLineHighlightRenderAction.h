#pragma once

#include <vexel/actions/SoHighlightRenderAction.h>

/** Marks what is selected with its edges. */
class VEXEL_API SoLineHighlightRenderAction : public SoHighlightRenderAction {
    SO_ACTION(SoLineHighlightRenderAction, SoHighlightRenderAction)
public:
    explicit SoLineHighlightRenderAction(const SbViewportRegion& region)
        : SoHighlightRenderAction(region, SbColor(1, 0, 0), 3)
    {
    }

protected:
    vexel::RenderHighlight getHighlight() const override;
};
