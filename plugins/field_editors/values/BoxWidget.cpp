#include "BoxWidget.h"

#include "NumberGrid.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

BoxWidget::BoxWidget(const NumberAccess& access, QWidget* parent)
    : ValueWidget(parent), m_access(access), m_value(access.create()),
      m_grid(new NumberGrid(access.kind, access.names, 2)), m_measures(new QLabel), m_empty(new QToolButton)
{
    include(*m_grid);
    connect(m_grid, &NumberGrid::edited, this, [this](int i, double number) {
        m_access.set(*m_value, i, number);
        showBox();
        emit edited(*m_value);
    });
    m_measures->setWordWrap(true);
    m_empty->setText(tr("Make Empty"));
    connect(m_empty, &QToolButton::clicked, this, &BoxWidget::makeEmpty);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_grid);
    rows->addWidget(m_measures);
    rows->addWidget(m_empty, 0, Qt::AlignLeft);
}

BoxWidget::~BoxWidget() = default;

void BoxWidget::showValue(const SoField& value)
{
    m_value->copyFrom(value);
    showBox();
}

void BoxWidget::showBox()
{
    for (int i = 0; i < m_grid->count(); ++i)
        m_grid->setValue(i, m_access.get(*m_value, i));
    m_measures->setText(describe());
}

QString BoxWidget::describe() const
{
    QStringList size;
    QStringList middle;
    for (int i = 0; i < m_grid->count(); i += 2) {
        const double lowest = m_access.get(*m_value, i);
        const double highest = m_access.get(*m_value, i + 1);
        if (highest < lowest)
            return tr("The box is empty.");
        size += NumberText::of(highest - lowest, NumberKind::of<float>());
        middle += NumberText::of((lowest + highest) / 2, NumberKind::of<float>());
    }
    return tr("Size %1, middle %2").arg(size.join(QStringLiteral(" x ")), middle.join(QLatin1Char(' ')));
}

void BoxWidget::makeEmpty()
{
    m_value.reset(m_access.create());
    showBox();
    emit edited(*m_value);
}

void BoxWidget::setReadOnly(bool isReadOnly)
{
    m_grid->setReadOnly(isReadOnly);
    m_empty->setEnabled(!isReadOnly);
}
