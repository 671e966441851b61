#include "ColorChannels.h"

#include "NumberBox.h"
#include "NumberGrid.h"

#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

constexpr int Slider_steps = 1000;
constexpr int Page_steps = 100;

} // namespace

ColorChannels::ColorChannels(const NumberKind& kind, const QStringList& names, const QStringList& longNames,
                             QWidget* parent)
    : QWidget(parent), m_grid(new NumberGrid(kind, names))
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_grid);
    m_grid->setStep(0.1);
    m_grid->setNameWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')));
    connect(m_grid, &NumberGrid::edited, this, &ColorChannels::edited);
    for (int i = 0; i < names.size(); ++i)
        addSlider(i, longNames[i]);
}

void ColorChannels::addSlider(int i, const QString& name)
{
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, Slider_steps);
    slider->setSingleStep(Slider_steps / 100);
    slider->setPageStep(Page_steps);
    slider->setAccessibleName(name);
    slider->setToolTip(name);
    m_grid->box(i).setAccessibleName(name);
    m_grid->addBehind(i, *slider);
    m_sliders.push_back(slider);
    connect(slider, &QSlider::sliderPressed, this, &ColorChannels::gestureBegun);
    connect(slider, &QSlider::sliderReleased, this, &ColorChannels::gestureEnded);
    connect(slider, &QSlider::valueChanged, this, [this, i](int position) {
        const double number = double(position) / Slider_steps;
        m_grid->setValue(i, number);
        emit edited(i, number);
    });
}

void ColorChannels::setNumbers(const SbVec3f& numbers)
{
    for (int i = 0; i < m_grid->count(); ++i) {
        m_grid->setValue(i, double(numbers[i]));
        QSlider& slider = *m_sliders[std::size_t(i)];
        const QSignalBlocker quiet(slider);
        if (!slider.isSliderDown())
            slider.setValue(int(std::lround(std::clamp(numbers[i], 0.0f, 1.0f) * Slider_steps)));
    }
}

void ColorChannels::setReadOnly(bool isReadOnly)
{
    m_grid->setReadOnly(isReadOnly);
    for (QSlider* slider : m_sliders)
        slider->setEnabled(!isReadOnly);
}
