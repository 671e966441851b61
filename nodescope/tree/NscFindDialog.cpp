#include "NscFindDialog.h"
#include "NodeSearch.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>

NscFindDialog::NscFindDialog(QComboBox* findBox, QWidget* parent) : QDialog(parent), m_findBox(findBox)
{
    setWindowTitle(tr("Find"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeWhatGroup());
    layout->addWidget(makeOptionGroup());
    layout->addStretch();
    layout->addLayout(makeButtons());
    setFocusProxy(m_findWhat);
}

QWidget* NscFindDialog::makeWhatGroup()
{
    auto* group = new QGroupBox(tr("Find What"));
    auto* layout = new QVBoxLayout(group);
    m_findWhat = new QComboBox;
    m_findWhat->setEditable(true);
    m_findWhat->setDuplicatesEnabled(false);
    m_findWhat->setAccessibleName(group->title());
    layout->addWidget(m_findWhat);
    auto* row = new QHBoxLayout;
    m_columns = {new QRadioButton(tr("By Type")), new QRadioButton(tr("By Name")), new QRadioButton(tr("By Address")),
                 new QRadioButton(tr("By Id"))};
    for (QRadioButton* button : m_columns)
        row->addWidget(button);
    m_columns[NodeSearch::ByType]->setChecked(true);
    row->addStretch();
    layout->addLayout(row);
    return group;
}

QWidget* NscFindDialog::makeOptionGroup()
{
    auto* group = new QGroupBox(tr("Find Options"));
    auto* layout = new QHBoxLayout(group);
    m_flags = {new QCheckBox(tr("Backward")), new QCheckBox(tr("Case Sensitive")), new QCheckBox(tr("Exact Match"))};
    for (QCheckBox* box : m_flags)
        layout->addWidget(box);
    return group;
}

QLayout* NscFindDialog::makeButtons()
{
    auto* find = new QPushButton(tr("Find"));
    auto* cancel = new QPushButton(tr("Cancel"));
    find->setDefault(true);
    connect(find, &QPushButton::clicked, this, &NscFindDialog::findRequested);
    connect(cancel, &QPushButton::clicked, this, &NscFindDialog::close);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(find);
    row->addWidget(cancel);
    return row;
}

int NscFindDialog::column() const
{
    for (int i = 0; i < int(m_columns.size()); ++i) {
        if (m_columns[i]->isChecked())
            return i;
    }
    return NodeSearch::ByType;
}

void NscFindDialog::setColumn(int column)
{
    if (column >= 0 && column < int(m_columns.size()))
        m_columns[column]->setChecked(true);
}

int NscFindDialog::flags() const
{
    int flags = 0;
    for (int bit = 0; bit < int(m_flags.size()); ++bit)
        flags |= int(m_flags[bit]->isChecked()) << bit;
    return flags;
}

void NscFindDialog::setFlags(int flags)
{
    for (int bit = 0; bit < int(m_flags.size()); ++bit)
        m_flags[bit]->setChecked(flags & (1 << bit));
}

QString NscFindDialog::text() const
{
    return m_findWhat->currentText();
}

void NscFindDialog::setText(const QString& text)
{
    m_findWhat->setEditText(text);
}

void NscFindDialog::setFocus()
{
    QDialog::setFocus();
    m_findWhat->lineEdit()->selectAll();
}

void NscFindDialog::showEvent(QShowEvent* event)
{
    // A window manager that shows a minimised window again sends this, too.
    if (!event->spontaneous()) {
        setText(m_findBox->currentText());
        m_findBox->setEnabled(false);
    }
    QDialog::showEvent(event);
}

void NscFindDialog::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        m_findBox->setEditText(text());
        m_findBox->setEnabled(true);
    }
    QDialog::hideEvent(event);
}
