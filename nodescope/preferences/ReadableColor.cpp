#include "ReadableColor.h"

#include <QColor>

#include <cmath>

namespace {

constexpr double Readable_contrast = 4.5;
constexpr double Dark_luminance = 0.18;

double luminance(const QColor& color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

bool ReadableColor::isReadable(const QColor& text, const QColor& background)
{
    const double a = luminance(text);
    const double b = luminance(background);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05) >= Readable_contrast;
}

QColor ReadableColor::on(const QColor& background, const QColor& wanted)
{
    if (isReadable(wanted, background))
        return wanted;
    const bool isDark = luminance(background) < Dark_luminance;
    QColor best = isDark ? Qt::white : Qt::black;
    if (wanted.hslSaturation() == 0)
        return best;
    for (int step = 1; step < 10; ++step) {
        const int lightness = isDark ? wanted.lightness() + step * (255 - wanted.lightness()) / 10
                                     : wanted.lightness() - step * wanted.lightness() / 10;
        QColor candidate = QColor::fromHsl(wanted.hslHue(), wanted.hslSaturation(), lightness);
        if (isReadable(candidate, background))
            return candidate;
    }
    return best;
}
