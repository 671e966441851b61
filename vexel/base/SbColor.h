#pragma once

#include <vexel/base/SbVec3f.h>

/** Red, green and blue, each from 0 to 1. */
class VEXEL_API SbColor : public SbVec3f {
public:
    constexpr SbColor() noexcept = default;
    constexpr SbColor(float red, float green, float blue) noexcept : SbVec3f(red, green, blue) {}
    constexpr SbColor(const SbVec3f& rgb) noexcept : SbVec3f(rgb) {}
    constexpr explicit SbColor(const float rgb[3]) noexcept : SbVec3f(rgb) {}

    /** Hue, saturation and value, each from 0 to 1; a hue of 1 is red again, as 0 is. */
    SbColor& setHSVValue(float hue, float saturation, float value) noexcept;
    /** The hue of a grey is 0. */
    void getHSVValue(float& hue, float& saturation, float& value) const noexcept;

    /** 0xRRGGBBAA; `transparency` receives 1 - alpha. */
    SbColor& setPackedValue(std::uint32_t rgba, float& transparency) noexcept;
    /** 0xRRGGBBAA; components outside 0 to 1 are cut off. */
    std::uint32_t getPackedValue(float transparency = 0) const noexcept;
};

template <>
struct std::hash<SbColor> : vexel::detail::VecHash<SbColor> {
};
