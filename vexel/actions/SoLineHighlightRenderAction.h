#pragma once

#include <cstdint>

#include <vexel/actions/SoHighlightRenderAction.h>

/** Marks what is selected with its edges. */
class VEXEL_API SoLineHighlightRenderAction : public SoHighlightRenderAction {
    SO_ACTION(SoLineHighlightRenderAction, SoHighlightRenderAction)
public:
    explicit SoLineHighlightRenderAction(const SbViewportRegion& region)
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
