#include "TextAdvances.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <numeric>

namespace {

constexpr int Pixel_size = 200; ///< at which letters are measured
constexpr double Usual_advance = 0.55;

} // namespace

std::vector<double> textAdvances(const PageText& text)
{
    std::vector<double> advances(std::size_t(text.text.size()), Usual_advance * text.size);
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        QFont font(text.family);
        font.setPixelSize(Pixel_size);
        font.setBold(text.isBold);
        font.setItalic(text.isItalic);
        const QFontMetricsF metrics(font);
        for (std::size_t i = 0; i < advances.size(); ++i)
            advances[i] = metrics.horizontalAdvance(text.text[int(i)]) * text.size / Pixel_size;
    }
    const double sum = std::accumulate(advances.begin(), advances.end(), 0.0);
    if (text.width > 0 && sum > 0) {
        for (double& advance : advances)
            advance *= text.width / sum;
    }
    return advances;
}
