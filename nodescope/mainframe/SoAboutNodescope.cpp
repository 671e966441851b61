#include "SoAboutNodescope.h"

#include <QRegularExpression>

namespace {

QPalette whitePalette()
{
    QPalette palette;
    palette.setBrush(QPalette::Window, QColor(255, 255, 255));
    palette.setBrush(QPalette::WindowText, QColor(0, 0, 0)); // white on a dark desktop otherwise
    return palette;
}

} // namespace

SoAboutNodescope::SoAboutNodescope(QWidget* parent) : QDialog(parent)
{
    setModal(true);
    setupUi(this);
    setFixedSize(size());
    setPalette(whitePalette());
    auto* label = new QLabel;
    label->setTextFormat(Qt::AutoText);
    label->setText(
        QStringLiteral(
            "<p align=\"center\"><b><h1 style=\"margin: 0\"><b>Nodescope</h1>&nbsp;%1 %2 64 bits release</p>")
            .arg(QLatin1String(NODESCOPE_VERSION), QLatin1String(NODESCOPE_BUILD)));
    label->setAccessibleName(label->text().remove(QRegularExpression("<[^>]*>|&nbsp;")));
    m_textFrame->layout()->addWidget(label);
}
