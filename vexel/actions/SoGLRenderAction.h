#pragma once

#include <memory>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbColorRGBA.h>

namespace vexel {
class CompiledScene;
class Renderer;
struct RenderOptions;
struct RenderView;
} // namespace vexel

/**
 * Draws a graph with the OpenGL context (3.3 core or newer) that is current, into the framebuffer that is bound.
 *
 * The graph is not walked for every picture: it is kept in a form that can be drawn at once, and what changed since the
 * last picture is brought up to date. Actions on the same root share that form. One action belongs to one context.
 */
class VEXEL_API SoGLRenderAction : public SoAction {
    SO_ACTION(SoGLRenderAction, SoAction)
public:
    /** How what is transparent is drawn, unless a TransparencyType node says otherwise. */
    enum TransparencyType {
        NO_SORT,       /**< in no certain order */
        OPAQUE_FIRST,  /**< behind all that is opaque */
        SORTED_OBJECT, /**< and shape by shape, the farthest first */
        SORTED_PIXEL,  /**< right for every pixel */
        NONE = NO_SORT
    };

    /** @param region  the part of the framebuffer to draw into */
    explicit SoGLRenderAction(const SbViewportRegion& region);
    ~SoGLRenderAction() override;

    void setViewportRegion(const SbViewportRegion& region) { state().setViewportRegion(region); }
    const SbViewportRegion& getViewportRegion() const { return state().getViewportRegion(); }

    void setTransparencyType(TransparencyType type) { m_transparencyType = type; }
    TransparencyType getTransparencyType() const { return m_transparencyType; }

    /** Whether colour and depth are cleared before; they are unless switched off. */
    void setClear(bool on) { m_clear = on; }
    bool isClear() const { return m_clear; }
    /** What the viewport is cleared with where the graph has no background of its own. */
    void setBackgroundColor(const SbColorRGBA& color) { m_backgroundColor = color; }
    const SbColorRGBA& getBackgroundColor() const { return m_backgroundColor; }

    /** Draws all surfaces otherwise than the graph says: the numbers of SoDrawStyle::Style, -1 for as it says. */
    void setDrawStyle(int style) { m_drawStyle = style; }
    int getDrawStyle() const { return m_drawStyle; }
    void setTexturesOn(bool on) { m_textures = on; }
    bool isTexturesOn() const { return m_textures; }
    void setLightingOn(bool on) { m_lighting = on; }
    bool isLightingOn() const { return m_lighting; }

    /** To be called when the context is gone or another one takes its place; drawing starts from scratch. */
    void contextDestroyed();
    /** Frees what the action keeps on the graphics card, for a context that outlives it; the context is current. */
    void releaseGraphics();

protected:
    void visitNode(SoNode& root) override;
    /** Called after a graph was drawn, with the context current. */
    virtual void drawOnTop(vexel::CompiledScene& scene, vexel::Renderer& renderer, const vexel::RenderView& view,
                           SoNode& root);

private:
    vexel::RenderOptions optionsFor(const vexel::CompiledScene& scene) const;
    void draw(vexel::CompiledScene& scene, SoNode& root);

    std::unique_ptr<vexel::Renderer> m_renderer;
    SbColorRGBA m_backgroundColor{0, 0, 0, 1};
    TransparencyType m_transparencyType = SORTED_OBJECT;
    int m_drawStyle = -1;
    bool m_clear = true;
    bool m_textures = true;
    bool m_lighting = true;
};
