#pragma once

#include <QCoreApplication>

class SoSFImage;

/** Image fields from and to files in any format that Qt knows. */
class ImageFile {
    Q_DECLARE_TR_FUNCTIONS(ImageFile)
public:
    /** Both answer why it failed, with the name of the file, in a sentence; empty: it is done. */
    ///@{
    static QString load(const QString& fileName, SoSFImage& image);
    /** The ending of the name says the format. A file of that name is replaced once the new one is complete. */
    static QString save(const QString& fileName, const SoSFImage& image);
    ///@}

    /** For file dialogs. */
    ///@{
    static QStringList loadFilters();
    static QStringList saveFilters();
    ///@}
};
