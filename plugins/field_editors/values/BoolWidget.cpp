#include "BoolWidget.h"

#include <vexel/fields/SoSFBool.h>

#include <QCheckBox>
#include <QVBoxLayout>

BoolWidget::BoolWidget(QWidget* parent) : ValueWidget(parent), m_box(new QCheckBox)
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_box, 0, Qt::AlignLeft);
    showBool(false);
    connect(m_box, &QCheckBox::clicked, this, [this](bool isOn) {
        showBool(isOn);
        SoSFBool value;
        value.setValue(isOn);
        emit edited(value);
    });
}

void BoolWidget::showValue(const SoField& value)
{
    showBool(static_cast<const SoSFBool&>(value).getValue());
}

void BoolWidget::setReadOnly(bool isReadOnly)
{
    m_box->setEnabled(!isReadOnly);
}

void BoolWidget::showBool(bool value)
{
    m_box->setChecked(value);
    m_box->setText(value ? QStringLiteral("TRUE") : QStringLiteral("FALSE")); // as in files, in any language
}
