#pragma once

#include <cstdint>
#include <optional>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/base/SbColorRGBA.h>
#include <vexel/base/SbViewportRegion.h>
#include <vexel/base/VexelApi.h>

class QImage;
class SbString;
class SoNode;

/**
 * Draws a graph into a picture file, without any display. Where the graph has no camera, one is placed in front of it
 * so that all is seen, with a light beside it where the graph has none.
 */
class VEXEL_API SoOffscreenRenderArea {
public:
    SoOffscreenRenderArea();
    SoOffscreenRenderArea(const SoOffscreenRenderArea&) = delete;
    SoOffscreenRenderArea& operator=(const SoOffscreenRenderArea&) = delete;

    void ref() const { ++m_references; }
    /** Destroys the area with its last reference. */
    void unref() const;

    /** The size of the picture, at most 32767 pixels each way; a large one is drawn piece by piece. */
    void setViewportRegion(const SbViewportRegion& region) { m_region = region; }
    const SbViewportRegion& getViewportRegion() const { return m_region; }
    /** A colour that is not opaque makes a picture with alpha, where the file's format has it. */
    void setBackgroundColor(const SbColorRGBA& color) { m_backgroundColor = color; }
    const SbColorRGBA& getBackgroundColor() const { return m_backgroundColor; }

    /** How transparent surfaces are drawn; as SoGLRenderAction does it unless set. */
    void setTransparencyType(SoGLRenderAction::TransparencyType type) { m_transparencyType = type; }

    /** Held until another one is set; null for none. */
    void setSceneGraph(SoNode* root);
    SoNode* getSceneGraph() const { return m_root; }

    /** The picture; null, with an error posted, where it cannot be drawn. */
    QImage render();
    /**
     * Writes the picture; the end of the name chooses the format: those of Qt, and PostScript for .ps. A file that is
     * there already is replaced by a complete one only.
     * @param quality  of formats that lose detail, from 0 to 1; 0 for their own choice
     * @return false, with an error posted, when nothing could be drawn or written
     */
    bool renderToFile(const SbString& fileName, double quality = 0);

private:
    ~SoOffscreenRenderArea();

    bool canDraw(const SbVec2s& size) const;

    mutable std::int32_t m_references = 0;
    SbViewportRegion m_region;
    SbColorRGBA m_backgroundColor{0, 0, 0, 1};
    std::optional<SoGLRenderAction::TransparencyType> m_transparencyType;
    SoNode* m_root = nullptr;
};
