#include "NumbersWidget.h"

#include "NumberGrid.h"
#include "RangeSlider.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

/** A range up to this length is stepped by a tenth. */
constexpr double Short_range = 2;

QStringList labelsOf(const QStringList& names)
{
    return names == QStringList(QString()) ? QStringList(NumbersWidget::tr("Value")) : names;
}

} // namespace

NumbersWidget::NumbersWidget(const NumberAccess& access, Qt::Orientation orientation, QWidget* parent)
    : ValueWidget(parent), m_access(access), m_value(access.create()),
      m_grid(new NumberGrid(access.kind, labelsOf(access.names), orientation == Qt::Vertical ? 1 : access.names.size()))
{
    include(*m_grid);
    connect(m_grid, &NumberGrid::edited, this, &NumbersWidget::setNumber);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* const line = new QHBoxLayout;
    rows->addLayout(line);
    line->addWidget(m_grid, 1);
    if (count() == 1) {
        addSlider();
        line->addWidget(m_slider, 1);
    } else {
        addVectorButtons();
        auto* const buttons = new QHBoxLayout;
        buttons->addWidget(m_link);
        buttons->addWidget(m_normalise);
        buttons->addStretch();
        rows->addLayout(buttons);
    }
}

NumbersWidget::~NumbersWidget() = default;

void NumbersWidget::addSlider()
{
    m_slider = new RangeSlider;
    m_slider->setAccessibleName(tr("Value"));
    m_slider->hide();
    connect(m_slider, &RangeSlider::gestureBegun, this, &NumbersWidget::gestureBegun);
    connect(m_slider, &RangeSlider::gestureEnded, this, &NumbersWidget::gestureEnded);
    connect(m_slider, &RangeSlider::edited, this, [this](double number) { setNumber(0, number); });
}

void NumbersWidget::addVectorButtons()
{
    m_link = new QToolButton;
    m_link->setIcon(QIcon(QStringLiteral(":/Field_editor_icons/link.png")));
    m_link->setText(tr("Link"));
    m_link->setToolTip(tr("Change all components together, in their proportions"));
    m_link->setCheckable(true);
    m_link->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_link, &QToolButton::toggled, this, [this] { m_proportions.clear(); });
    m_normalise = new QToolButton;
    m_normalise->setIcon(QIcon(QStringLiteral(":/Field_editor_icons/normalise.png")));
    m_normalise->setText(tr("Normalize"));
    m_normalise->setToolTip(tr("Make the vector 1 long"));
    m_normalise->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_normalise->setVisible(!m_access.kind.isWhole);
    connect(m_normalise, &QToolButton::clicked, this, &NumbersWidget::normalise);
}

void NumbersWidget::showValue(const SoField& value)
{
    m_value->copyFrom(value);
    showNumbers();
}

void NumbersWidget::showNumbers()
{
    double squares = 0;
    for (int i = 0; i < count(); ++i) {
        const double number = m_access.get(*m_value, i);
        squares += number * number;
        m_grid->setValue(i, number);
    }
    if (m_slider)
        m_slider->showNumber(m_access.get(*m_value, 0));
    if (m_normalise)
        m_normalise->setEnabled(m_link->isEnabled() && squares > 0);
}

void NumbersWidget::setReadOnly(bool isReadOnly)
{
    m_grid->setReadOnly(isReadOnly);
    if (m_slider)
        m_slider->setEnabled(!isReadOnly);
    if (m_link)
        m_link->setEnabled(!isReadOnly);
    showNumbers();
}

void NumbersWidget::setRange(const ValueRange* range)
{
    const bool isShort = range && !m_access.kind.isWhole && range->highest - range->lowest <= Short_range;
    m_grid->setStep(isShort ? 0.1 : 1);
    if (!m_slider)
        return;
    if (range)
        m_slider->setValueRange(*range);
    m_slider->setVisible(range);
    showNumbers();
}

void NumbersWidget::setNumber(int i, double number)
{
    if (m_link && m_link->isChecked())
        setLinked(i, number);
    else
        m_access.set(*m_value, i, number);
    showNumbers();
    emit edited(*m_value);
}

void NumbersWidget::setLinked(int i, double number)
{
    if (m_proportions.empty()) {
        for (int k = 0; k < count(); ++k)
            m_proportions.push_back(m_access.get(*m_value, k));
    }
    const double before = m_proportions[std::size_t(i)];
    for (int k = 0; k < count(); ++k) {
        // Beside a zero there is no proportion: all get the same number.
        double linked = before == 0 ? number : m_proportions[std::size_t(k)] / before * number;
        linked = std::clamp(linked, m_access.kind.lowest, m_access.kind.highest);
        m_access.set(*m_value, k, m_access.kind.isWhole ? std::round(linked) : linked);
    }
    m_access.set(*m_value, i, number);
}

void NumbersWidget::normalise()
{
    double squares = 0;
    for (int i = 0; i < count(); ++i)
        squares += std::pow(m_access.get(*m_value, i), 2);
    if (squares == 0)
        return;
    for (int i = 0; i < count(); ++i)
        m_access.set(*m_value, i, m_access.get(*m_value, i) / std::sqrt(squares));
    showNumbers();
    emit edited(*m_value);
}
