#pragma once

#include <QImage>
#include <QString>

/** A file as another program shows it. */
struct OtherPicture {
    QImage image;       ///< of the picture's rectangle, without the page around it
    double shown = 1;   ///< part of its height, from above, that the program shows
    std::string output; ///< what the program wrote
};

/** Programs that show exported files, each for one format; they write into a folder. */
namespace OtherPrograms {

OtherPicture pdftoppm(const QString& file, const QString& folder);
/** PDF and PostScript. */
OtherPicture ghostscript(const QString& file, const QString& folder);
OtherPicture soffice(const QString& file, const QString& folder);
OtherPicture inkscape(const QString& file, const QString& folder);
OtherPicture hp2xx(const QString& file, const QString& folder);

} // namespace OtherPrograms
