#include "PenCarousel.h"

#include <algorithm>
#include <limits>

namespace {

constexpr InkColor Pens[PenCarousel::Num_pens] = {{0, 0, 0},   {255, 0, 0},   {0, 255, 0},   {255, 255, 0},
                                                  {0, 0, 255}, {255, 0, 255}, {0, 255, 255}, {255, 128, 0}};

} // namespace

PenCarousel::Ink PenCarousel::inkFor(const InkColor& color)
{
    constexpr double Least_saturation = 0.2; // of colours that are not black or gray
    const auto [low, high] = std::minmax({color.red, color.green, color.blue});
    const double spread = high - low;
    Ink ink{1, 1 - (color.red + color.green + color.blue) / (3 * 255.0)};
    if (spread <= Least_saturation * high)
        return ink;
    const auto pure = [&, least = low](std::uint8_t component) { return (component - least) / spread * 255; };
    double nearest = std::numeric_limits<double>::max();
    for (int i = 1; i < Num_pens; ++i) {
        const double red = pure(color.red) - Pens[i].red;
        const double green = pure(color.green) - Pens[i].green;
        const double blue = pure(color.blue) - Pens[i].blue;
        const double distance = red * red + green * green + blue * blue;
        if (distance < nearest) {
            nearest = distance;
            ink.pen = i + 1;
        }
    }
    return ink;
}
