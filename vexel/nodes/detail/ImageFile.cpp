#include <vexel/nodes/detail/ImageFile.h>

#include <QImage>
#include <QImageReader>
#include <vector>

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SbVec2i32.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoReadError.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/io/SoInput.h>

namespace {

void store(QImage picture, SoSFImage& image)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    const bool isGrey = !hasAlpha && picture.isGrayscale();
    const int components = hasAlpha ? 4 : (isGrey ? 1 : 3);
    picture = picture.convertToFormat(hasAlpha ? QImage::Format_RGBA8888
                                               : (isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888));
    // Pictures begin at the top, image fields at the bottom.
    std::vector<std::uint8_t> bytes;
    const auto rowSize = static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(components);
    bytes.reserve(rowSize * static_cast<std::size_t>(picture.height()));
    for (int row = picture.height() - 1; row >= 0; --row) {
        const std::uint8_t* line = picture.constScanLine(row);
        bytes.insert(bytes.end(), line, line + rowSize);
    }
    image.setValue(SbVec2i32(picture.width(), picture.height()), components, bytes.data());
}

} // namespace

void loadImageFile(const SbString& fileName, SoSFImage& image)
{
    QImage picture;
    if (!fileName.isEmpty()) {
        QImageReader reader(SbFileHelper::expandString(fileName).toQString());
        reader.setDecideFormatFromContent(true);
        if (!reader.read(&picture))
            SoReadError::post(fileName, "the picture cannot be read: %s", reader.errorString().toUtf8().constData());
    }
    if (picture.isNull())
        image.setValue(SbVec2i32(0, 0), 0, nullptr);
    else
        store(std::move(picture), image);
    image.setDefault(true);
}

void loadImageBeside(SoInput& in, const SoSFString& fileName, SoSFImage& image)
{
    if (fileName.getValue().isEmpty() || !image.isDefault())
        return;
    const SbString found = in.findFile(fileName.getValue());
    loadImageFile(found.isEmpty() ? fileName.getValue() : found, image);
}
