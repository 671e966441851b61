#include "RowDelegate.h"

#include <QPalette>

#include <cmath>

namespace {

// What the style sheet puts behind rows under the pointer.
const QColor Hover_background(0xd9, 0xe4, 0xf7);
constexpr double Readable_contrast = 4.5;

double luminance(const QColor& color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The colour itself where it can be read, else the same hue lighter or darker.
QColor readable(const QColor& color, const QColor& background)
{
    if (contrast(color, background) >= Readable_contrast)
        return color;
    const bool isDark = luminance(background) < 0.18;
    QColor best = isDark ? Qt::white : Qt::black;
    if (color.hslSaturation() == 0)
        return best;
    for (int step = 1; step < 10; ++step) {
        const int lightness = isDark ? color.lightness() + step * (255 - color.lightness()) / 10
                                     : color.lightness() - step * color.lightness() / 10;
        QColor candidate = QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
        if (contrast(candidate, background) >= Readable_contrast)
            return candidate;
    }
    return best;
}

} // namespace

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The current row is the selected one; a frame around one of its cells would only dim its text.
    option->state &= ~QStyle::State_HasFocus;
    const QColor background =
        option->state & QStyle::State_MouseOver ? Hover_background : option->palette.color(QPalette::Base);
    const QColor text = option->palette.color(QPalette::Normal, QPalette::Text);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        option->palette.setColor(group, QPalette::Text, readable(text, background));
        option->palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
}
