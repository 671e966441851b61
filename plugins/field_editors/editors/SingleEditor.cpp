#include "SingleEditor.h"

#include "KnownRanges.h"

#include <plugins/field_editors/values/ProblemLine.h>
#include <plugins/field_editors/values/ValueWidget.h>

#include <QVBoxLayout>

SingleEditor::SingleEditor(ValueWidget* values) : m_values(values), m_problem(new ProblemLine)
{
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(m_values);
    rows->addWidget(m_problem);
    rows->addStretch();
    connectGestures(*m_values);
    connect(m_values, &ValueWidget::edited, &m_binding, &FieldBinding::setValue);
    connect(m_values, &ValueWidget::problemChanged, m_problem, &ProblemLine::setProblem);
    connect(&m_binding, &FieldBinding::fieldChanged, this, &SingleEditor::showField);
    connect(&m_binding, &FieldBinding::valueChanged, this, &SingleEditor::showValue);
}

void SingleEditor::showField()
{
    m_values->forgetInput();
    m_problem->setProblem(QString());
    if (const SoField* const field = m_binding.field())
        m_values->setRange(KnownRanges::of(*field));
    showValue();
}

void SingleEditor::showValue()
{
    m_values->setReadOnly(!m_binding.isEditable());
    if (const SoField* const field = m_binding.field())
        m_values->showValue(*field);
}
