#include <vexel/base/SbColorRGBA.h>

#include <vexel/base/SbColor.h>

#include <cmath>

SbColorRGBA::SbColorRGBA(const SbColor& color, float alpha) noexcept : SbVec4f(color[0], color[1], color[2], alpha) {}

SbColor SbColorRGBA::getRGB() const noexcept
{
    return SbColor(getValue());
}

SbColorRGBA& SbColorRGBA::setPackedValue(std::uint32_t rgba) noexcept
{
    for (int i = 0; i < 4; ++i)
        (*this)[i] = static_cast<float>(rgba >> (24 - 8 * i) & 0xff) / 255.0f;
    return *this;
}

std::uint32_t SbColorRGBA::getPackedValue() const noexcept
{
    std::uint32_t packed = 0;
    for (int i = 0; i < 4; ++i) {
        const float c = (*this)[i];
        const float cut = c > 0 ? std::fmin(c, 1.0f) : 0.0f; // also cuts a value that is not a number to 0
        packed = packed << 8 | static_cast<std::uint32_t>(std::lround(255 * cut));
    }
    return packed;
}
