#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/InkColor.h>

/**
 * The eight pens of a plotter's carousel: 1 black, 2 red, 3 green, 4 yellow, 5 blue, 6 magenta, 7 cyan, 8 orange.
 */
class PLOTKIT_API PenCarousel {
public:
    static constexpr int Num_pens = 8;

    struct Ink {
        int pen;         ///< from 1
        double coverage; ///< of white paper, from 0 to 1
    };

    /** The pen of the same hue; the darker a colour, the more of the paper is covered. */
    static Ink inkFor(const InkColor& color);
};
