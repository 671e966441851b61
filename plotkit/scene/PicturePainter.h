#pragma once

#include <plotkit/scene/PagePrimitives.h>

#include <functional>

/** Paints what is seen of primitives: surfaces, then lines, points and texts, then transparent surfaces. */
class PicturePainter {
public:
    /** How much is done, from 0 to 1; false ends the work. */
    using ProgressCB = std::function<bool(double part)>;

    PicturePainter(PictureSink& sink, ProgressCB progress);

    /** False when the work was ended. */
    bool paint(const PagePrimitives& primitives);

private:
    struct Part;

    bool paintSurfaces(const PagePrimitives& primitives, std::vector<Part>& transparent);
    void paintLines(const PagePrimitives& primitives);
    void paintPart(const PagePrimitives& primitives, std::size_t index, const std::vector<PagePoint>& corners);

    PictureSink& m_sink;
    ProgressCB m_progress;
};
