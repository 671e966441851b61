#pragma once

#include <vexel/actions/SoHighlightRenderAction.h>

/** Marks what is selected with a glow around its outline. */
class VEXEL_API SoHaloHighlightRenderAction : public SoHighlightRenderAction {
    SO_ACTION(SoHaloHighlightRenderAction, SoHighlightRenderAction)
public:
    explicit SoHaloHighlightRenderAction(const SbViewportRegion& region)
        : SoHighlightRenderAction(region, SbColor(1, 0.6f, 0), 6)
    {
    }

    /** Whether the glow shows in front of what hides the shape, as it does at first. */
    void setHaloAlwaysVisible(bool on) { m_isAlwaysVisible = on; }
    bool isHaloAlwaysVisible() const { return m_isAlwaysVisible; }

protected:
    vexel::RenderHighlight getHighlight() const override;

private:
    bool m_isAlwaysVisible = true;
};
