#include "PicturePrinter.h"

#include "ShownPicture.h"

#include <vexel/viewer/SoSceneManager.h>

#include <QCoreApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace {

/** Pixels of a side beyond which a picture gains nothing on paper and takes minutes to draw. */
constexpr int Most_pixels = 12000;
/** The same on the screen, where each change of the page draws it again. */
constexpr int Most_preview_pixels = 1600;

bool isPreview(const QPrinter& printer)
{
    return printer.paintEngine()->type() == QPaintEngine::Picture;
}

/** Width and height of the view. */
QSize proportions(const ShownPicture& picture, const QSize& page)
{
    if (!picture.manager())
        return page;
    const SbVec2s pixels = picture.manager()->getViewportRegion().getViewportSizePixels();
    return {pixels[0], pixels[1]};
}

} // namespace

void PicturePrinter::preview(QWidget& window, const ShownPicture& picture)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintPreviewDialog dialog(&printer, &window);
    dialog.setWindowTitle(QCoreApplication::translate("PicturePrinter", "Print"));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&picture](QPrinter* target) { print(*target, picture); });
    dialog.exec();
}

void PicturePrinter::print(QPrinter& printer, const ShownPicture& picture)
{
    const QSize page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    const QSize size = proportions(picture, page).scaled(page, Qt::KeepAspectRatio);
    const int most = isPreview(printer) ? Most_preview_pixels : Most_pixels;
    const QSize pixels = size.scaled(size.boundedTo({most, most}), Qt::KeepAspectRatio);
    const QImage image = picture.render(SbVec2s(short(pixels.width()), short(pixels.height())));
    if (image.isNull())
        return;
    QPainter painter(&printer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint((page.width() - size.width()) / 2, (page.height() - size.height()) / 2), size),
                      image);
}
