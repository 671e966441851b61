#include "ColorText.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr int Digits = 6;

} // namespace

QColor ColorText::onScreen(const SbColor& color)
{
    // In this order for what is no number.
    const auto part = [&](int i) { return color[i] > 0 ? std::min(double(color[i]), 1.0) : 0.0; };
    return QColor::fromRgbF(part(0), part(1), part(2));
}

SbColor ColorText::of(const QColor& color)
{
    return SbColor(float(color.redF()), float(color.greenF()), float(color.blueF()));
}

QString ColorText::of(const SbColor& color)
{
    return onScreen(color).name();
}

std::optional<SbColor> ColorText::parse(const QString& text, QString& problem)
{
    QString digits = text.trimmed();
    if (digits.startsWith(QLatin1Char('#')))
        digits.remove(0, 1);
    const auto other =
        std::find_if(digits.cbegin(), digits.cend(), [](QChar c) { return !std::isxdigit(uchar(c.toLatin1())); });
    if (other != digits.cend())
        problem = tr("\"%1\" is no hexadecimal digit.").arg(*other);
    else if (digits.size() != Digits)
        problem = tr("A color has six hexadecimal digits, not %1.").arg(digits.size());
    else
        return of(QColor(QLatin1Char('#') + digits));
    return std::nullopt;
}
