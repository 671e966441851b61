#include "BuiltInImages.h"

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace {

struct NamedImage {
    const char* name;
    int width;
    int height;
    const char* pixels; ///< one character a pixel: its place in the colour table, as a digit
    const QRgb* colors;
};

const QRgb Arrow_colors[] = {0x00000000, 0xff2b6cb0, 0x802b6cb0};

// A short arrow that bends to the right: the node stands in other places too.
const char Arrow_short[] = "000000000000"
                           "000000000000"
                           "002100000000"
                           "001100012000"
                           "001100011200"
                           "001111111120"
                           "001111111120"
                           "000000011200"
                           "000000012000"
                           "000000000000"
                           "000000000000"
                           "000000000000";

const NamedImage Images[] = {{"ArrowShort", 12, 12, Arrow_short, Arrow_colors}};

QIcon makeIcon(const NamedImage& image)
{
    QImage picture(image.width, image.height, QImage::Format_ARGB32);
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x)
            picture.setPixel(x, y, image.colors[image.pixels[y * image.width + x] - '0']);
    }
    return QIcon(QPixmap::fromImage(picture));
}

} // namespace

QIcon BuiltInImages::icon(const QString& name)
{
    static QHash<QString, QIcon> known;
    const auto found = known.constFind(name);
    if (found != known.constEnd())
        return *found;
    for (const NamedImage& image : Images) {
        if (name == QLatin1String(image.name))
            return *known.insert(name, makeIcon(image));
    }
    return QIcon();
}
