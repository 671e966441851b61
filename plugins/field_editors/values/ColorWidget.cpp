#include "ColorWidget.h"

#include "CheckedLine.h"
#include "ColorChannels.h"
#include "ColorSwatch.h"
#include "ColorText.h"
#include "Marking.h"
#include "NumberGrid.h"

#include <vexel/fields/SoSFColor.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <cmath>

namespace {

constexpr NumberKind Part{0, 1, false};
/** Digits beyond come of the conversion. */
constexpr float Hue_precision = 1e6f;

QString problemOf(const QString& text)
{
    QString problem;
    ColorText::parse(text, problem);
    return problem;
}

} // namespace

ColorWidget::ColorWidget(QWidget* parent)
    : ValueWidget(parent), m_swatch(new ColorSwatch), m_line(new CheckedLine(problemOf)),
      m_rgbChannels(new ColorChannels(NumberKind::of<float>(),
                                      {QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")},
                                      {tr("Red"), tr("Green"), tr("Blue")})),
      m_hsvChannels(new ColorChannels(Part, {QStringLiteral("H"), QStringLiteral("S"), QStringLiteral("V")},
                                      {tr("Hue"), tr("Saturation"), tr("Brightness")}))
{
    auto* const label = new QLabel(tr("Hexadecimal"));
    label->setBuddy(m_line);
    m_line->setAccessibleName(label->text());
    auto* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_line, 1);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_swatch);
    rows->addLayout(line);
    rows->addWidget(m_rgbChannels);
    rows->addWidget(m_hsvChannels);
    connectChannels(*m_rgbChannels);
    connectChannels(*m_hsvChannels);
    connect(m_rgbChannels, &ColorChannels::edited, this, [this](int i, double number) {
        SbColor color = m_color;
        color[i] = float(number);
        edit(color);
    });
    connect(m_hsvChannels, &ColorChannels::edited, this, [this](int i, double number) {
        m_hsv[i] = float(number);
        edit(SbColor().setHSVValue(m_hsv[0], m_hsv[1], m_hsv[2]));
    });
    connect(m_line, &CheckedLine::taken, this, [this](const QString& text) {
        QString problem;
        edit(*ColorText::parse(text, problem));
    });
    connect(m_line, &CheckedLine::problemChanged, this, &ColorWidget::problemChanged);
    connect(m_swatch, &ColorSwatch::chosen, this, [this](const QColor& color) { edit(ColorText::of(color)); });
    connect(m_swatch, &ColorSwatch::choiceBegun, this, &ColorWidget::gestureBegun);
    connect(m_swatch, &ColorSwatch::choiceEnded, this, &ColorWidget::gestureEnded);
    connect(m_swatch, &ColorSwatch::choiceCancelled, this, &ColorWidget::gestureCancelled);
}

void ColorWidget::connectChannels(ColorChannels& channels)
{
    include(channels.grid());
    connect(&channels, &ColorChannels::gestureBegun, this, &ColorWidget::gestureBegun);
    connect(&channels, &ColorChannels::gestureEnded, this, &ColorWidget::gestureEnded);
}

void ColorWidget::showValue(const SoField& value)
{
    showColor(static_cast<const SoSFColor&>(value).getValue());
}

void ColorWidget::showColor(const SbColor& color)
{
    m_color = color;
    updateHue(color);
    m_swatch->setColor(ColorText::onScreen(color));
    m_line->showText(ColorText::of(color));
    m_rgbChannels->setNumbers(color);
    SbVec3f hsv;
    for (int i = 0; i < 3; ++i)
        hsv[i] = std::round(m_hsv[i] * Hue_precision) / Hue_precision;
    m_hsvChannels->setNumbers(hsv);
}

void ColorWidget::updateHue(const SbColor& color)
{
    if (SbColor().setHSVValue(m_hsv[0], m_hsv[1], m_hsv[2]) == color)
        return;
    SbVec3f hsv;
    color.getHSVValue(hsv[0], hsv[1], hsv[2]);
    if (hsv[1] == 0)
        hsv[0] = m_hsv[0];
    m_hsv = hsv;
}

void ColorWidget::edit(const SbColor& color)
{
    showColor(color);
    SoSFColor value;
    value.setValue(color);
    emit edited(value);
}

void ColorWidget::setReadOnly(bool isReadOnly)
{
    m_swatch->setReadOnly(isReadOnly);
    Marking::setReadOnly(*m_line, isReadOnly);
    m_rgbChannels->setReadOnly(isReadOnly);
    m_hsvChannels->setReadOnly(isReadOnly);
}

void ColorWidget::forgetInput()
{
    ValueWidget::forgetInput();
    m_swatch->closeDialog();
    m_line->forget();
    m_hsv = SbVec3f();
}
