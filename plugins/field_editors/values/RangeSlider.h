#pragma once

#include <QSlider>
#include <plugins/field_editors/values/ValueWidget.h>

/** A horizontal slider for a number in a range, at first from 0 to 1. Arrow keys move it by a hundredth. */
class RangeSlider : public QSlider {
    Q_OBJECT
public:
    explicit RangeSlider(QWidget* parent = nullptr);

    void setValueRange(const ValueRange& range) { m_range = range; }
    /** Shows a number, or the end of the range that is next to it, unless the user is dragging. */
    void showNumber(double number);

signals:
    void edited(double number);
    /** The user drags. */
    ///@{
    void gestureBegun();
    void gestureEnded();
    ///@}

private:
    ValueRange m_range{0, 1};
};
