#include "NumberGrid.h"

#include "DragLabel.h"
#include "Marking.h"
#include "NumberBox.h"

#include <QGridLayout>
#include <algorithm>
#include <memory>

NumberGrid::NumberGrid(const NumberKind& kind, const QStringList& names, int columns, QWidget* parent)
    : QWidget(parent), m_problems(std::size_t(names.size()))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < names.size(); ++i) {
        addNumber(kind, names[i]);
        const int column = i % columns * 2;
        if (m_labels.back())
            grid->addWidget(m_labels.back(), i / columns, column);
        grid->addWidget(m_boxes.back(), i / columns, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
}

void NumberGrid::addNumber(const NumberKind& kind, const QString& name)
{
    const int i = count();
    auto* const box = new NumberBox(kind);
    auto* const label = name.isEmpty() ? nullptr : new DragLabel(name);
    m_boxes.push_back(box);
    m_labels.push_back(label);
    box->setAccessibleName(name);
    connect(box, &NumberBox::edited, this, [this, i](double value) { emit edited(i, value); });
    connect(box, &NumberBox::gestureBegun, this, &NumberGrid::gestureBegun);
    connect(box, &NumberBox::gestureEnded, this, &NumberGrid::gestureEnded);
    connect(box, &NumberBox::problemChanged, this, [this, i](const QString& problem) { setProblem(i, problem); });
    if (label)
        connectLabel(*label, *box);
}

void NumberGrid::connectLabel(DragLabel& label, NumberBox& box)
{
    auto start = std::make_shared<double>();
    connect(&label, &DragLabel::dragBegun, this, [this, &box, start] {
        *start = box.value();
        emit gestureBegun();
    });
    connect(&label, &DragLabel::dragged, &box, [&box, start](int pixels) { box.dragTo(*start, pixels); });
    connect(&label, &DragLabel::dragEnded, this, &NumberGrid::gestureEnded);
}

void NumberGrid::setProblem(int i, const QString& problem)
{
    m_problems[std::size_t(i)] = problem;
    const auto first = std::find_if(m_problems.begin(), m_problems.end(), [](const auto& p) { return !p.isEmpty(); });
    emit problemChanged(first == m_problems.end() ? QString() : *first);
}

double NumberGrid::value(int i) const
{
    return box(i).value();
}

void NumberGrid::setValue(int i, double value)
{
    box(i).setValue(value);
}

void NumberGrid::setVector(const SbVec3f& vector)
{
    for (int i = 0; i < 3; ++i)
        setValue(i, double(vector[i]));
}

void NumberGrid::setStep(double step)
{
    for (NumberBox* box : m_boxes)
        box->setStep(step);
}

void NumberGrid::setNameWidth(int width)
{
    static_cast<QGridLayout*>(layout())->setColumnMinimumWidth(0, width);
}

void NumberGrid::addBehind(int i, QWidget& widget)
{
    auto* const grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(&widget, i, 2);
    grid->setColumnStretch(2, 2);
}

void NumberGrid::setReadOnly(bool isReadOnly)
{
    for (NumberBox* box : m_boxes)
        Marking::setReadOnly(*box, isReadOnly);
    for (DragLabel* label : m_labels) {
        if (label)
            label->setReadOnly(isReadOnly);
    }
}

void NumberGrid::forgetInput()
{
    for (NumberBox* box : m_boxes)
        box->forgetInput();
}
