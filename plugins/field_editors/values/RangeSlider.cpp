#include "RangeSlider.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

namespace {

constexpr int Positions = 1000;

} // namespace

RangeSlider::RangeSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent)
{
    setRange(0, Positions);
    setSingleStep(Positions / 100);
    setPageStep(Positions / 10);
    connect(this, &QSlider::sliderPressed, this, &RangeSlider::gestureBegun);
    connect(this, &QSlider::sliderReleased, this, &RangeSlider::gestureEnded);
    connect(this, &QSlider::valueChanged, this, [this](int position) {
        emit edited(m_range.lowest + (m_range.highest - m_range.lowest) * position / Positions);
    });
}

void RangeSlider::showNumber(double number)
{
    if (isSliderDown())
        return;
    const double part = (number - m_range.lowest) / (m_range.highest - m_range.lowest);
    const QSignalBlocker quiet(this);
    // In this order for what is no number.
    setValue(part > 0 ? int(std::lround(std::min(part, 1.0) * Positions)) : 0);
}
