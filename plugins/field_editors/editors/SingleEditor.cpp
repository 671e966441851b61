#include "SingleEditor.h"

#include "EditorParts.h"
#include "KnownRanges.h"

#include <extension/NscShell.h>
#include <plugins/field_editors/values/ProblemLine.h>
#include <plugins/field_editors/values/ValueWidget.h>

#include <QVBoxLayout>
#include <utility>

SingleEditor::SingleEditor(Info info, SoType type, bool isExact, ValueWidget* values)
    : NscFieldEditor(std::move(info)), m_type(type), m_isExact(isExact), m_widget(new QWidget), m_values(values),
      m_problem(new ProblemLine)
{
    auto* const rows = new QVBoxLayout(m_widget);
    rows->addWidget(m_values);
    rows->addWidget(m_problem);
    rows->addStretch();
    connectGestures(*m_values, m_binding);
    connect(m_values, &ValueWidget::edited, &m_binding, &FieldBinding::setValue);
    connect(m_values, &ValueWidget::problemChanged, m_problem, &ProblemLine::setProblem);
    connect(&m_binding, &FieldBinding::fieldChanged, this, &SingleEditor::showField);
    connect(&m_binding, &FieldBinding::valueChanged, this, &SingleEditor::showValue);
}

SingleEditor::~SingleEditor()
{
    if (NscShell* const shell = NscShell::getInstance())
        shell->unregisterExtension(this);
    delete m_widget;
}

void SingleEditor::activate()
{
    NscShell::getInstance()->registerExtension(m_type, m_isExact, this);
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
