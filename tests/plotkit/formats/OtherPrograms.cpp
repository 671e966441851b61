#include "OtherPrograms.h"

#include <tests/support/ProgramRun.h>

#include <QRectF>

namespace {

// The page and the picture on it as SoVectorizeAction lays them out at first, in millimetres.
constexpr double Page_width = 297;
constexpr double Page_height = 210;
constexpr double Margin = 10;
constexpr double Picture_height = Page_height - 2 * Margin;
constexpr double Picture_width = Picture_height * 1208 / 1024;
constexpr double Picture_left = (Page_width - Picture_width) / 2;

/** Cuts the picture out of an image as wide as the page; the image may end above the lower end of the page. */
OtherPicture onPage(const QString& fileName, const ProgramRun& run)
{
    const QImage page = QImage(fileName).convertToFormat(QImage::Format_RGB32);
    const double scale = page.width() / Page_width;
    const double bottom = std::min(page.height() / scale, Page_height - Margin);
    OtherPicture picture;
    picture.shown = (bottom - Margin) / Picture_height;
    picture.image = page.copy(
        QRectF(Picture_left * scale, Margin * scale, Picture_width * scale, (bottom - Margin) * scale).toRect());
    picture.output = run.out + run.err;
    return picture;
}

} // namespace

OtherPicture OtherPrograms::pdftoppm(const QString& file, const QString& folder)
{
    const ProgramRun run =
        runOtherProgram("pdftoppm", {"-r", "150", "-singlefile", "-png", file, folder + "/pdftoppm"});
    return onPage(folder + "/pdftoppm.png", run);
}

OtherPicture OtherPrograms::ghostscript(const QString& file, const QString& folder)
{
    const QString image = folder + "/gs.png";
    const ProgramRun run =
        runOtherProgram("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=png16m", "-r150", "-dTextAlphaBits=4",
                               "-dGraphicsAlphaBits=4", "-sOutputFile=" + image, file});
    return onPage(image, run);
}

/** Lays the page on a slide of 16:9, as wide as it; what is below is not shown. */
OtherPicture OtherPrograms::soffice(const QString& file, const QString& folder)
{
    const ProgramRun run =
        runOtherProgram("soffice", {"--headless", "--norestore", "-env:UserInstallation=file://" + folder + "/office",
                                    "--convert-to", "png", "--outdir", folder, file});
    return onPage(folder + "/" + file.section('/', -1).section('.', 0, 0) + ".png", run);
}

OtherPicture OtherPrograms::inkscape(const QString& file, const QString& folder)
{
    const QString image = folder + "/inkscape.png";
    const ProgramRun run = runOtherProgram("inkscape", {file, "--export-type=png", "--export-dpi=150",
                                                        "--export-background=white", "--export-filename=" + image});
    return onPage(image, run);
}

/** Shows what is drawn on, which is all of a picture that has a ground. */
OtherPicture OtherPrograms::hp2xx(const QString& file, const QString& folder)
{
    const QString image = folder + "/hp2xx.png";
    const ProgramRun run = runOtherProgram("hp2xx", {"-m", "png", "-t", "-d", "150", "-f", image, file});
    return {QImage(image).convertToFormat(QImage::Format_RGB32), 1, run.out + run.err};
}
