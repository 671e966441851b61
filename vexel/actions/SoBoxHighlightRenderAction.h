#pragma once

#include <cstdint>

#include <vexel/actions/SoHighlightRenderAction.h>

/** Marks each selected path with the box around it. */
class VEXEL_API SoBoxHighlightRenderAction : public SoHighlightRenderAction {
    SO_ACTION(SoBoxHighlightRenderAction, SoHighlightRenderAction)
public:
    explicit SoBoxHighlightRenderAction(const SbViewportRegion& region)
        : SoHighlightRenderAction(region, SbColor(1, 0, 0), 3)
    {
    }

    /** Which pixels along a line are drawn, the lowest bit first, again and again; all at first. */
    void setLinePattern(std::uint16_t pattern) { m_linePattern = pattern; }
    std::uint16_t getLinePattern() const { return m_linePattern; }

protected:
    vexel::RenderHighlight getHighlight() const override;

private:
    std::uint16_t m_linePattern = 0xffff;
};
