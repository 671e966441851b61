#include "ImageFile.h"

#include "ImageTexels.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <vexel/fields/SoSFImage.h>
#include <vexel/io/SoAtomicFile.h>

namespace {

QString patterns(const QList<QByteArray>& formats)
{
    QStringList all;
    for (const QByteArray& format : formats)
        all += QStringLiteral("*.") + QString::fromLatin1(format);
    return all.join(QLatin1Char(' '));
}

} // namespace

QString ImageFile::load(const QString& fileName, SoSFImage& image)
{
    QImageReader reader(fileName);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        return tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(fileName), reader.errorString());
    ImageTexels::setPicture(image, picture);
    return QString();
}

QString ImageFile::save(const QString& fileName, const SoSFImage& image)
{
    SoAtomicFile file;
    const bool isOpen = file.open(fileName);
    QImageWriter writer(&file.device(), QFileInfo(fileName).suffix().toLatin1());
    if (isOpen && !writer.write(ImageTexels::picture(image)))
        file.giveUp(writer.errorString());
    if (isOpen && file.close())
        return QString();
    return tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(fileName), file.getReason().toQString());
}

QStringList ImageFile::loadFilters()
{
    return {tr("Images (%1)").arg(patterns(QImageReader::supportedImageFormats())), tr("All files (*)")};
}

QStringList ImageFile::saveFilters()
{
    return {tr("Images (%1)").arg(patterns(QImageWriter::supportedImageFormats()))};
}
