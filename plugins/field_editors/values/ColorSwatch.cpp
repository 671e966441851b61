#include "ColorSwatch.h"

#include <QColorDialog>
#include <QPainter>

namespace {

constexpr double Lines = 2.5;
constexpr int Focus_margin = 4;

} // namespace

ColorSwatch::ColorSwatch(QWidget* parent) : QAbstractButton(parent)
{
    setAccessibleName(tr("Color"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setReadOnly(false);
    connect(this, &QAbstractButton::clicked, this, &ColorSwatch::openDialog);
}

void ColorSwatch::setColor(const QColor& color)
{
    m_color = color;
    setAccessibleDescription(color.name());
    update();
}

void ColorSwatch::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    setCursor(isReadOnly ? Qt::ArrowCursor : Qt::PointingHandCursor);
    setToolTip(isReadOnly ? QString() : tr("Choose another color"));
    if (isReadOnly)
        closeDialog();
}

QSize ColorSwatch::sizeHint() const
{
    return {fontMetrics().height() * 4, int(fontMetrics().height() * Lines)};
}

void ColorSwatch::openDialog()
{
    if (m_isReadOnly || m_dialog)
        return;
    m_dialog = new QColorDialog(m_color, this);
    m_dialog->setOption(QColorDialog::DontUseNativeDialog);
    m_dialog->setWindowTitle(tr("Color"));
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &QColorDialog::currentColorChanged, this, &ColorSwatch::chosen);
    connect(m_dialog, &QDialog::accepted, this, &ColorSwatch::choiceEnded);
    connect(m_dialog, &QDialog::rejected, this, &ColorSwatch::choiceCancelled);
    emit choiceBegun();
    m_dialog->open();
}

void ColorSwatch::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->close();
    m_dialog.clear();
    emit choiceEnded();
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(isDown() ? QPalette::Text : QPalette::Mid));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), m_color);
    if (!hasFocus())
        return;
    // Readable on the colour itself.
    painter.setPen(m_color.lightnessF() > 0.5 ? Qt::black : Qt::white);
    const int m = Focus_margin;
    painter.drawRect(rect().adjusted(m, m, -m - 1, -m - 1));
}
