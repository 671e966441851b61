#include "PenCarousel.h"

#include <algorithm>
#include <limits>

namespace {

constexpr InkColor Pens[PenCarousel::Num_pens] = {{0, 0, 0},   {255, 0, 0},   {0, 255, 0},   {255, 255, 0},
                                                  {0, 0, 255}, {255, 0, 255}, {0, 255, 255}, {255, 128, 0}};

} // namespace

PenCarousel::Ink PenCarousel::inkFor(const InkColor& color)
{
    Ink best{1, 0};
    double least = std::numeric_limits<double>::max();
    for (int i = 0; i < Num_pens; ++i) {
        const auto darkness = [](std::uint8_t component) { return 1 - component / 255.0; };
        const double pen[] = {darkness(Pens[i].red), darkness(Pens[i].green), darkness(Pens[i].blue)};
        const double wanted[] = {darkness(color.red), darkness(color.green), darkness(color.blue)};
        double together = 0;
        double square = 0;
        for (int k = 0; k < 3; ++k) {
            together += pen[k] * wanted[k];
            square += pen[k] * pen[k];
        }
        const double coverage = std::clamp(together / square, 0.0, 1.0);
        double error = 0;
        for (int k = 0; k < 3; ++k)
            error += (wanted[k] - coverage * pen[k]) * (wanted[k] - coverage * pen[k]);
        if (error < least) {
            least = error;
            best = {i + 1, coverage};
        }
    }
    return best;
}
