#include "ImageTexels.h"

#include <vexel/fields/SoSFImage.h>

#include <algorithm>
#include <vector>

namespace {

/** Components from 1 to 4. */
constexpr QImage::Format Formats[] = {QImage::Format_Invalid, QImage::Format_Grayscale8, QImage::Format_RGBA8888,
                                      QImage::Format_RGB888, QImage::Format_RGBA8888};

QSize sizeOf(const SoSFImage& image)
{
    return {image.getSize()[0], image.getSize()[1]};
}

void copyTexel(const std::uint8_t* texel, int components, std::uint8_t* pixel)
{
    if (components == 2) {
        std::fill_n(pixel, 3, texel[0]);
        pixel[3] = texel[1];
    } else {
        std::copy_n(texel, components, pixel);
    }
}

bool isGrey(const QImage& picture)
{
    // There is no format of grey with alpha, so that only the pixels tell.
    if (picture.hasAlphaChannel())
        return picture.allGray();
    const bool isGreyFormat =
        picture.format() == QImage::Format_Grayscale8 || picture.format() == QImage::Format_Grayscale16;
    return isGreyFormat || (picture.colorCount() > 0 && picture.allGray());
}

} // namespace

QImage ImageTexels::sampled(const SoSFImage& image, const QSize& size)
{
    if (image.isEmpty() || size.isEmpty())
        return QImage();
    const int components = image.getNumComponents();
    const QSize all = sizeOf(image);
    QImage picture(size, Formats[components]);
    if (picture.isNull())
        return picture;
    const auto at = [](int i, int count, int of) { return std::size_t((2 * std::int64_t(i) + 1) * of / (2 * count)); };
    std::vector<std::size_t> offsets;
    for (int x = 0; x < size.width(); ++x)
        offsets.push_back(at(x, size.width(), all.width()) * std::size_t(components));
    const std::size_t rowSize = std::size_t(all.width()) * std::size_t(components);
    const int pixelSize = picture.depth() / 8;
    for (int y = 0; y < size.height(); ++y) {
        const std::uint8_t* const row =
            image.getBytes().data() + at(size.height() - 1 - y, size.height(), all.height()) * rowSize;
        std::uint8_t* pixel = picture.scanLine(y);
        for (const std::size_t offset : offsets) {
            copyTexel(row + offset, components, pixel);
            pixel += pixelSize;
        }
    }
    return picture;
}

QImage ImageTexels::picture(const SoSFImage& image)
{
    return sampled(image, sizeOf(image));
}

void ImageTexels::setPicture(SoSFImage& image, const QImage& picture)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    const bool isGrey = ::isGrey(picture);
    const int components = (isGrey ? 1 : 3) + (hasAlpha ? 1 : 0);
    const QImage pixels = picture.convertToFormat(Formats[components]);
    const int pixelSize = pixels.depth() / 8;
    std::vector<std::uint8_t> bytes;
    bytes.reserve(std::size_t(pixels.width()) * std::size_t(pixels.height()) * std::size_t(components));
    for (int y = pixels.height() - 1; y >= 0; --y) {
        const std::uint8_t* pixel = pixels.constScanLine(y);
        for (int x = 0; x < pixels.width(); ++x, pixel += pixelSize) {
            if (components == 2)
                bytes.insert(bytes.end(), {pixel[0], pixel[3]});
            else
                bytes.insert(bytes.end(), pixel, pixel + components);
        }
    }
    image.setValue(SbVec2i32(pixels.width(), pixels.height()), components, bytes.data());
}
