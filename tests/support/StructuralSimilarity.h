#pragma once

#include <QImage>

/**
 * How alike two pictures of the same size look: 1 for the same, about 0 for what has nothing in common. The mean of the
 * index of structural similarity over windows of 8 x 8 pixels of luminance: formula 13, with the constants of formulas
 * 7 and 11, of Z. Wang, A. C. Bovik, H. R. Sheikh, E. P. Simoncelli, "Image Quality Assessment: From Error Visibility
 * to Structural Similarity", IEEE Transactions on Image Processing 13 (4), 2004.
 */
inline double structuralSimilarity(const QImage& a, const QImage& b)
{
    constexpr int Window = 8;
    constexpr int Step = 4;
    constexpr double C1 = 0.01 * 255 * 0.01 * 255;
    constexpr double C2 = 0.03 * 255 * 0.03 * 255;
    if (a.size() != b.size() || a.width() < Window || a.height() < Window)
        return 0;
    const QImage x = a.convertToFormat(QImage::Format_Grayscale8);
    const QImage y = b.convertToFormat(QImage::Format_Grayscale8);
    double total = 0;
    int numWindows = 0;
    for (int top = 0; top + Window <= x.height(); top += Step) {
        for (int left = 0; left + Window <= x.width(); left += Step) {
            double sumX = 0, sumY = 0, sumXX = 0, sumYY = 0, sumXY = 0;
            for (int row = top; row < top + Window; ++row) {
                const uchar* const px = x.constScanLine(row) + left;
                const uchar* const py = y.constScanLine(row) + left;
                for (int i = 0; i < Window; ++i) {
                    sumX += px[i];
                    sumY += py[i];
                    sumXX += px[i] * px[i];
                    sumYY += py[i] * py[i];
                    sumXY += px[i] * py[i];
                }
            }
            constexpr double Pixels = Window * Window;
            const double meanX = sumX / Pixels;
            const double meanY = sumY / Pixels;
            const double varianceX = (sumXX - sumX * meanX) / (Pixels - 1);
            const double varianceY = (sumYY - sumY * meanY) / (Pixels - 1);
            const double covariance = (sumXY - sumX * meanY) / (Pixels - 1);
            total += (2 * meanX * meanY + C1) * (2 * covariance + C2) /
                     ((meanX * meanX + meanY * meanY + C1) * (varianceX + varianceY + C2));
            ++numWindows;
        }
    }
    return total / numWindows;
}
