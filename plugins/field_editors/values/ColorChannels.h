#pragma once

#include <QWidget>
#include <plugins/field_editors/values/NumberText.h>
#include <vector>
#include <vexel/base/SbVec3f.h>

class NumberGrid;
class RangeSlider;

/** Three numbers that make a colour, each with a slider from 0 to 1. */
class ColorChannels : public QWidget {
    Q_OBJECT
public:
    ColorChannels(const NumberKind& kind, const QStringList& names, const QStringList& longNames,
                  QWidget* parent = nullptr);

    NumberGrid& grid() { return *m_grid; }
    /** Shows numbers, but for one that the user is typing or dragging. */
    void setNumbers(const SbVec3f& numbers);
    void setReadOnly(bool isReadOnly);

signals:
    void edited(int i, double number);
    /** The user drags a slider. */
    ///@{
    void gestureBegun();
    void gestureEnded();
    ///@}

private:
    void addSlider(int i, const QString& name);

    NumberGrid* m_grid;
    std::vector<RangeSlider*> m_sliders;
};
