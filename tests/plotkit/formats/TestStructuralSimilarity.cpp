#include <tests/support/StructuralSimilarity.h>

#include <QPainter>
#include <gtest/gtest.h>
#include <random>

namespace {

QImage drawing(int shift = 0)
{
    QImage image(200, 160, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(shift, 0);
    painter.fillRect(20, 20, 60, 40, Qt::red);
    painter.setBrush(Qt::blue);
    painter.drawEllipse(100, 60, 70, 70);
    for (int i = 0; i < 12; ++i)
        painter.drawLine(10 + 8 * i, 80, 30 + 8 * i, 150);
    return image;
}

QImage noise()
{
    std::mt19937 random(3);
    QImage image(200, 160, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int gray = int(random() % 256);
            image.setPixel(x, y, qRgb(gray, gray, gray));
        }
    }
    return image;
}

TEST(StructuralSimilarity, ofTheSameIsOne)
{
    EXPECT_DOUBLE_EQ(1, structuralSimilarity(drawing(), drawing()));
    EXPECT_DOUBLE_EQ(1, structuralSimilarity(noise(), noise()));
}

TEST(StructuralSimilarity, ofADrawingAndNoiseIsNearlyNone)
{
    EXPECT_LT(structuralSimilarity(drawing(), noise()), 0.1);
}

TEST(StructuralSimilarity, fallsTheFurtherADrawingIsShifted)
{
    const double one = structuralSimilarity(drawing(), drawing(1));
    const double five = structuralSimilarity(drawing(), drawing(5));
    EXPECT_LT(one, 0.95);
    EXPECT_GT(one, 0.6);
    EXPECT_LT(five, one - 0.05);
}

TEST(StructuralSimilarity, ofAnEmptyPictureIsFarFromThatOfTheDrawing)
{
    QImage empty(drawing().size(), QImage::Format_RGB32);
    empty.fill(Qt::lightGray);
    EXPECT_LT(structuralSimilarity(drawing(), empty), 0.7);
}

TEST(StructuralSimilarity, needsPicturesOfOneSize)
{
    EXPECT_EQ(0, structuralSimilarity(drawing(), drawing().copy(0, 0, 100, 100)));
    EXPECT_EQ(0, structuralSimilarity(QImage(), QImage()));
}

} // namespace
