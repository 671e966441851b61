#include "ListEditor.h"

#include "KnownRanges.h"

#include <plugins/field_editors/lists/ListColumns.h>
#include <plugins/field_editors/lists/ListTable.h>
#include <plugins/field_editors/values/ProblemLine.h>
#include <plugins/field_editors/values/ValueWidget.h>

#include <QSplitter>
#include <QVBoxLayout>
#include <utility>

ListEditor::ListEditor(std::unique_ptr<ListColumns> columns, ValueWidget* values)
    : m_columns(std::move(columns)), m_table(new ListTable(m_binding, *m_columns)), m_values(values),
      m_count(new QLabel), m_problem(new ProblemLine)
{
    layOut();
    connect(m_table, &ListTable::problemChanged, m_problem, &ProblemLine::setProblem);
    connect(m_table, &ListTable::currentRowChanged, this, &ListEditor::showRow);
    connect(&m_binding, &FieldBinding::fieldChanged, this, &ListEditor::showField);
    connect(&m_binding, &FieldBinding::valueChanged, this, &ListEditor::showValue);
    if (!m_values)
        return;
    connectGestures(*m_values);
    connect(m_values, &ValueWidget::edited, this, &ListEditor::takeValue);
    connect(m_values, &ValueWidget::problemChanged, m_problem, &ProblemLine::setProblem);
}

ListEditor::~ListEditor()
{
    delete m_table; // which works with the columns and the binding
}

void ListEditor::layOut()
{
    auto* const rows = new QVBoxLayout(this);
    auto* const parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_table);
    parts->setStretchFactor(0, 1);
    if (m_values)
        parts->addWidget(m_values);
    rows->addWidget(parts, 1);
    rows->addWidget(m_problem);
    rows->addWidget(m_count);
}

void ListEditor::showField()
{
    m_problem->setProblem(QString());
    if (m_values && list())
        m_values->setRange(KnownRanges::of(*list()));
    showRow();
}

void ListEditor::showRow()
{
    if (m_values)
        m_values->forgetInput();
    showValue();
}

void ListEditor::showValue()
{
    const int num = list() ? list()->getNum() : 0;
    m_count->setText(num == 1 ? tr("1 value") : tr("%L1 values").arg(num));
    if (!m_values)
        return;
    const int row = m_table->currentRow();
    const bool hasValue = row >= 0 && row < num;
    m_values->setVisible(hasValue);
    m_values->setReadOnly(!m_binding.isEditable());
    if (hasValue)
        m_values->showValue(*m_columns->single(*list(), row));
}

void ListEditor::takeValue(const SoField& value)
{
    const int row = m_table->currentRow();
    if (row >= 0 && list() && row < list()->getNum())
        m_binding.replaceValues(row, 1, m_columns->list(value));
}
