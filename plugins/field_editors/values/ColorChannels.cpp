#include "ColorChannels.h"

#include "NumberBox.h"
#include "NumberGrid.h"
#include "RangeSlider.h"

#include <QVBoxLayout>

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
    auto* const slider = new RangeSlider;
    slider->setAccessibleName(name);
    slider->setToolTip(name);
    m_grid->box(i).setAccessibleName(name);
    m_grid->addBehind(i, *slider);
    m_sliders.push_back(slider);
    connect(slider, &RangeSlider::gestureBegun, this, &ColorChannels::gestureBegun);
    connect(slider, &RangeSlider::gestureEnded, this, &ColorChannels::gestureEnded);
    connect(slider, &RangeSlider::edited, this, [this, i](double number) { emit edited(i, number); });
}

void ColorChannels::setNumbers(const SbVec3f& numbers)
{
    for (int i = 0; i < m_grid->count(); ++i) {
        m_grid->setValue(i, double(numbers[i]));
        m_sliders[std::size_t(i)]->showNumber(double(numbers[i]));
    }
}

void ColorChannels::setReadOnly(bool isReadOnly)
{
    m_grid->setReadOnly(isReadOnly);
    for (RangeSlider* slider : m_sliders)
        slider->setEnabled(!isReadOnly);
}
