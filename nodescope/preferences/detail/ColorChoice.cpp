#include "ColorChoice.h"

#include <QColorDialog>
#include <QPainter>
#include <QPointer>

QColor ColorChoice::ask(QColor current, const char* dialogName, QWidget* parent)
{
    // The page, and with it the dialog and the colour that is asked about, may go while the dialog is open.
    const QPointer<QColorDialog> dialog = new QColorDialog(current, parent);
    dialog->setObjectName(QString::fromLatin1(dialogName));
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    const QColor color = dialog && isChosen ? dialog->selectedColor() : current;
    delete dialog;
    return color;
}

QPixmap ColorChoice::swatch(const QColor& color, const QSize& size, const QWidget& widget)
{
    QPixmap pixmap(size * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(widget.palette().color(QPalette::Mid));
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    return pixmap;
}
