#include "NameWidget.h"

#include "CheckedLine.h"
#include "Marking.h"
#include "NameText.h"

#include <vexel/fields/SoSFName.h>

#include <QHBoxLayout>
#include <QLabel>

NameWidget::NameWidget(QWidget* parent) : ValueWidget(parent), m_line(new CheckedLine(NameText::problemOf))
{
    auto* const label = new QLabel(tr("Name"));
    label->setBuddy(m_line);
    m_line->setAccessibleName(label->text());
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(m_line, 1);
    connect(m_line, &CheckedLine::taken, this, [this](const QString& text) {
        SoSFName value;
        value.setValue(SbName(text));
        emit edited(value);
    });
    connect(m_line, &CheckedLine::problemChanged, this, &NameWidget::problemChanged);
}

void NameWidget::showValue(const SoField& value)
{
    m_line->showText(static_cast<const SoSFName&>(value).getValue().toQString());
}

void NameWidget::setReadOnly(bool isReadOnly)
{
    Marking::setReadOnly(*m_line, isReadOnly);
}

void NameWidget::forgetInput()
{
    m_line->forget();
}
