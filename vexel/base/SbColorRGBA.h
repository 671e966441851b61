#pragma once

#include <vexel/base/SbVec4f.h>

class SbColor;

/** Red, green, blue and alpha, each from 0 to 1; alpha 1 is opaque. A default-constructed colour is all zero. */
class VEXEL_API SbColorRGBA : public SbVec4f {
public:
    constexpr SbColorRGBA() noexcept = default;
    constexpr SbColorRGBA(float red, float green, float blue, float alpha) noexcept : SbVec4f(red, green, blue, alpha)
    {
    }
    constexpr SbColorRGBA(const SbVec4f& rgba) noexcept : SbVec4f(rgba) {}
    constexpr explicit SbColorRGBA(const float rgba[4]) noexcept : SbVec4f(rgba) {}
    explicit SbColorRGBA(const SbColor& color, float alpha = 1) noexcept;

    /** The colour without alpha. */
    SbColor getRGB() const noexcept;

    /** 0xRRGGBBAA */
    SbColorRGBA& setPackedValue(std::uint32_t rgba) noexcept;
    /** 0xRRGGBBAA; components outside 0 to 1 are cut off. */
    std::uint32_t getPackedValue() const noexcept;
};

template <>
struct std::hash<SbColorRGBA> : vexel::detail::VecHash<SbColorRGBA> {
};
