#include <vexel/base/SbColor.h>

#include <vexel/base/SbColorRGBA.h>

#include <algorithm>
#include <cmath>

SbColor& SbColor::setHSVValue(float hue, float saturation, float value) noexcept
{
    // Each component is a trapezoid over the hue; the offsets shift the same one to red, green and blue.
    static constexpr float Offsets[3] = {5, 3, 1};
    for (int i = 0; i < 3; ++i) {
        const float k = std::fmod(Offsets[i] + 6 * hue, 6.0f);
        (*this)[i] = value - value * saturation * std::clamp(std::min(k, 4 - k), 0.0f, 1.0f);
    }
    return *this;
}

void SbColor::getHSVValue(float& hue, float& saturation, float& value) const noexcept
{
    const float* rgb = getValue();
    const int largest = static_cast<int>(std::max_element(rgb, rgb + 3) - rgb);
    value = rgb[largest];
    const float range = value - *std::min_element(rgb, rgb + 3);
    saturation = value > 0 ? range / value : 0;
    hue = 0;
    if (range > 0) {
        const float sector = 2.0f * largest + (rgb[(largest + 1) % 3] - rgb[(largest + 2) % 3]) / range;
        hue = (sector < 0 ? sector + 6 : sector) / 6;
    }
}

SbColor& SbColor::setPackedValue(std::uint32_t rgba, float& transparency) noexcept
{
    const SbColorRGBA color = SbColorRGBA().setPackedValue(rgba);
    transparency = 1 - color[3];
    return *this = color.getRGB();
}

std::uint32_t SbColor::getPackedValue(float transparency) const noexcept
{
    return SbColorRGBA(*this, 1 - transparency).getPackedValue();
}
