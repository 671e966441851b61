#include "ValueWidget.h"

#include "NumberGrid.h"

#include <algorithm>

void ValueWidget::setRange(const ValueRange*) {}

void ValueWidget::forgetInput()
{
    for (const auto& each : m_problems)
        each.first->forgetInput();
}

void ValueWidget::include(NumberGrid& grid)
{
    m_problems[&grid].clear();
    connect(&grid, &NumberGrid::gestureBegun, this, &ValueWidget::gestureBegun);
    connect(&grid, &NumberGrid::gestureEnded, this, &ValueWidget::gestureEnded);
    connect(&grid, &NumberGrid::problemChanged, this, [this, &grid](const QString& problem) {
        m_problems[&grid] = problem;
        const auto first =
            std::find_if(m_problems.begin(), m_problems.end(), [](const auto& each) { return !each.second.isEmpty(); });
        emit problemChanged(first == m_problems.end() ? QString() : first->second);
    });
}
