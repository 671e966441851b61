#pragma once

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/base/SbColor.h>

namespace vexel {
struct RenderHighlight;
}

/** Draws a graph and marks what the first Selection node in it has selected. */
class VEXEL_API SoHighlightRenderAction : public SoGLRenderAction {
    SO_ACTION(SoHighlightRenderAction, SoGLRenderAction)
public:
    /** Without the marks it is a plain render action. */
    void setVisible(bool on) { m_isVisible = on; }
    bool isVisible() const { return m_isVisible; }

    void setColor(const SbColor& color) { m_color = color; }
    const SbColor& getColor() const { return m_color; }
    /** In pixels. */
    void setLineWidth(float width) { m_lineWidth = width; }
    float getLineWidth() const { return m_lineWidth; }

protected:
    SoHighlightRenderAction(const SbViewportRegion& region, const SbColor& color, float lineWidth);

    /** How selected shapes are marked, colour and width aside. */
    virtual vexel::RenderHighlight getHighlight() const = 0;
    void drawOnTop(vexel::CompiledScene& scene, vexel::Renderer& renderer, const vexel::RenderView& view,
                   SoNode& root) override;

private:
    SbColor m_color;
    float m_lineWidth;
    bool m_isVisible = true;
};
