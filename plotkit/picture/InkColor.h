#pragma once

#include <plotkit/picture/PictureSink.h>

#include <cstdint>

/** A colour that covers what is behind, as formats with eight bits for each component have it. */
struct InkColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    /** Alpha is left out, and what is no number is 0. */
    static InkColor of(const PageColor& color)
    {
        const auto component = [](float value) {
            return std::uint8_t(value > 0 ? (value < 1 ? value : 1) * 255 + 0.5f : 0);
        };
        return {component(color.red), component(color.green), component(color.blue)};
    }

    std::uint32_t packed() const { return std::uint32_t(red) << 16 | std::uint32_t(green) << 8 | blue; }
    bool operator==(const InkColor& other) const { return packed() == other.packed(); }
    bool operator!=(const InkColor& other) const { return !(*this == other); }
};
