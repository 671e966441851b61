#pragma once

#include <plotkit/hidden/SurfaceTriangle.h>
#include <plotkit/picture/PictureSink.h>

#include <vector>

/** A scene as it lies on the page, nothing of it hidden yet, in the order of its drawing. */
struct PagePrimitives {
    struct Segment {
        std::array<PagePoint, 2> ends;
        std::array<double, 2> depths;
        LineStyle style;
    };
    struct Dot {
        PagePoint middle;
        double depth = 0;
        double diameter = 0;
        PageColor color;
    };
    /** A small picture of one colour that keeps its size. */
    struct Sign {
        PagePoint middle;
        double depth = 0;
        std::vector<PageRect> parts;
        PageColor color;
    };
    struct Text {
        PageText text;
        double depth = 0;
    };

    std::vector<SurfaceTriangle> surfaces;
    std::vector<std::array<PageColor, 3>> surfaceColors; ///< of the corners of each surface
    std::vector<Segment> segments;
    std::vector<Dot> dots;
    std::vector<Sign> signs;
    std::vector<Text> texts;
};
