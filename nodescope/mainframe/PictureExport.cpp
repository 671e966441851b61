#include "PictureExport.h"

#include "ShownPicture.h"

#include <plotkit/SoPlotkit.h>
#include <plotkit/VectorFormat.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QProgressDialog>
#include <algorithm>

namespace {

constexpr const char* Method = "SoNodescopeViewer::printFile()";
const SbVec2s Raster_size(1208, 1024);

/** A row of the file dialog. */
struct Format {
    const char* filter;
    const char* extension;   ///< added to a name that has none of them anywhere
    const char* alternative; ///< null: there is no other one
    const char* vector;      ///< name of the vector format; null: a raster picture
};

const Format Formats[] = {
    {QT_TRANSLATE_NOOP("PictureExport", "JPG - JPEG"), ".jpg", ".jpeg", nullptr},
    {QT_TRANSLATE_NOOP("PictureExport", "BMP - Windows Bitmap"), ".bmp", nullptr, nullptr},
    {QT_TRANSLATE_NOOP("PictureExport", "TIFF - Tag Image File Format"), ".tiff", nullptr, nullptr},
    {QT_TRANSLATE_NOOP("PictureExport", "PS - PostScript"), ".ps", nullptr, nullptr},
    {QT_TRANSLATE_NOOP("PictureExport", "RGB - SGI Image File"), ".rgb", nullptr, nullptr},
    {QT_TRANSLATE_NOOP("PictureExport", "PDF - using Plotkit"), ".pdf", nullptr, "PDF"},
    {QT_TRANSLATE_NOOP("PictureExport", "U3D - using Plotkit"), ".u3d", nullptr, "U3D"},
    {QT_TRANSLATE_NOOP("PictureExport", "PS - using Plotkit"), ".ps", nullptr, "PS"},
    {QT_TRANSLATE_NOOP("PictureExport", "CGM - using Plotkit"), ".cgm", nullptr, "CGM"},
    {QT_TRANSLATE_NOOP("PictureExport", "EMF/GDI - using Plotkit"), ".emf", nullptr, "GDI"},
    {QT_TRANSLATE_NOOP("PictureExport", "HPGL - using Plotkit"), ".hpgl", nullptr, "HPGL"},
};

QString text(const char* source)
{
    return QCoreApplication::translate("PictureExport", source);
}

QString withExtension(const QString& file, const Format& format)
{
    // Anywhere in the name: "a.pdf.old" is taken as it is.
    const bool hasOne = file.indexOf(QLatin1String(format.extension)) >= 0 ||
                        (format.alternative && file.indexOf(QLatin1String(format.alternative)) >= 0);
    return hasOne ? file : file + QLatin1String(format.extension);
}

void writeRaster(const ShownPicture& picture, const QString& file)
{
    if (!picture.renderToFile(Raster_size, file))
        SoDebugError::post("SoNodescopeViewer::printFile", "Unable to write to file %s", file.toLatin1().constData());
}

/** False when something failed; a user who cancels is no failure, and leaves no file. */
bool writeVector(QWidget& window, const ShownPicture& picture, const char* name, const QString& file)
{
    const VectorFormat* const format = VectorFormat::named(name);
    const std::unique_ptr<VectorExport> output = format ? format->create() : nullptr;
    if (!output || !output->openFile(file))
        return false;
    constexpr int Steps = 100;
    QProgressDialog progress(text(QT_TRANSLATE_NOOP("PictureExport", "Exporting the scene...")),
                             text(QT_TRANSLATE_NOOP("PictureExport", "Cancel")), 0, Steps, &window);
    progress.setWindowModality(Qt::ApplicationModal);
    output->setProgressCallback([&progress](double part) {
        if (int(part * Steps) > progress.value())
            progress.setValue(std::min(int(part * Steps), Steps - 1));
        return !progress.wasCanceled();
    });
    if (picture.manager())
        output->setBackgroundColor(picture.manager()->getBackgroundColorRGBA());
    output->apply(&picture.root());
    return output->closeFile() || progress.wasCanceled();
}

} // namespace

void PictureExport::printFile(QWidget& window, const ShownPicture& picture, const QString& sceneFile)
{
    QStringList filters;
    for (const Format& format : Formats)
        filters += text(format.filter);
    const QString proposal =
        sceneFile.isEmpty() ? QStringLiteral("./Untitled File") : sceneFile.left(sceneFile.lastIndexOf('.'));
    QString filter = filters.first();
    const QString file = QFileDialog::getSaveFileName(
        &window, text(QT_TRANSLATE_NOOP("PictureExport", "Choose a filename to export under")), proposal,
        filters.join(QStringLiteral(";;")), &filter);
    if (file.isEmpty())
        return;
    const Format& format = Formats[std::max(filters.indexOf(filter), 0)];
    const QString name = withExtension(file, format);
    if (!format.vector) {
        writeRaster(picture, name);
        return;
    }
    SoPlotkit::init();
    if (!writeVector(window, picture, format.vector, name))
        SoDebugError::post(Method, "Unable to do export");
    SoPlotkit::finish();
}
