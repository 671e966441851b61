#pragma once

#include <plotkit/PlotkitApi.h>
#include <vexel/base/SbColorRGBA.h>
#include <vexel/base/SbViewportRegion.h>

#include <functional>
#include <optional>

class PictureSink;
class SoNode;
class SoVectorOutput;
struct PageLayout;

/**
 * Draws a graph into a file of lines and surfaces: what is hidden is left out, the rest is laid on a page as the camera
 * sees it. A graph without a camera or a light is given them.
 */
class PLOTKIT_API SoVectorizeAction {
public:
    /** How much is done, from 0 to 1; answering false ends the work, and no file is made. */
    using ProgressCB = std::function<bool(double part)>;

    SoVectorizeAction(const SoVectorizeAction&) = delete;
    SoVectorizeAction& operator=(const SoVectorizeAction&) = delete;
    virtual ~SoVectorizeAction();

    /** Size of the sheet in millimetres; 297 x 210 at first. */
    void setPageSize(double width, double height);
    /** What is left free at each side, in millimetres; 10 at first. */
    void setMargin(double margin) { m_margin = margin; }
    /** The picture that is laid on the page: its proportions, and the pixels in which widths of lines and sizes of
     *  points are given. 1208 x 1024 at first. */
    void setViewportRegion(const SbViewportRegion& region) { m_region = region; }
    /** The colour behind the scene; none, at first: that of the paper. A background node of the scene goes before it.
     */
    void setBackgroundColor(const std::optional<SbColorRGBA>& color) { m_backgroundColor = color; }
    /** Whether a background is drawn at all; it is at first. */
    void setBackgroundDrawn(bool isDrawn) { m_drawsBackground = isDrawn; }
    void setProgressCallback(ProgressCB progress) { m_progress = std::move(progress); }

    /** Draws into the output's file, which must be open; null draws nothing. */
    void apply(SoNode* root);

protected:
    explicit SoVectorizeAction(SoVectorOutput& output);

private:
    PageLayout layOut() const;
    bool draw(SoNode& root, PictureSink& sink) const;

    SoVectorOutput& m_output;
    double m_width = 297;
    double m_height = 210;
    double m_margin = 10;
    SbViewportRegion m_region{1208, 1024};
    std::optional<SbColorRGBA> m_backgroundColor;
    bool m_drawsBackground = true;
    ProgressCB m_progress;
};
