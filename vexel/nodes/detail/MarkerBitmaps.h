#pragma once

#include <array>
#include <cstdint>

/** The pixels of a sign. */
struct MarkerBitmap {
    static constexpr int MaxSize = 9;

    int size = 0; ///< width and height
    /** From top to bottom; the lowest bit is the leftmost pixel. */
    std::array<std::uint16_t, MaxSize> rows{};
};

/** The sign with a number of SoMarkerSet::markerOf(); numbers that it never gives stand for the first sign. */
const MarkerBitmap& markerBitmap(int marker);
