#include "FieldEditor.h"

#include <extension/NscShell.h>

#include <utility>

FieldEditor::FieldEditor(Info info, SoType type, bool isExact, MakeWidget makeWidget)
    : NscFieldEditor(std::move(info)), m_type(type), m_isExact(isExact), m_makeWidget(std::move(makeWidget))
{
}

FieldEditor::~FieldEditor()
{
    if (NscShell* const shell = NscShell::getInstance())
        shell->unregisterExtension(this);
    delete m_widget;
}

void FieldEditor::activate()
{
    NscShell::getInstance()->registerExtension(m_type, m_isExact, this);
}

QWidget* FieldEditor::getWidget()
{
    if (!m_widget)
        m_widget = m_makeWidget();
    return m_widget;
}

void FieldEditor::setField(SoField* field)
{
    if (field)
        getWidget();
    if (m_widget)
        m_widget->setField(field);
}
