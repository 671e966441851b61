#include "SoTreeViewPreferences.h"
#include "SoPreferenceStore.h"

#include <QSignalBlocker>

SoTreeViewPreferences::SoTreeViewPreferences(QWidget* parent) : QWidget(parent)
{
    setupUi(this);
    m_syntaxGroupBox->addOption(m_showRow);
    connect(m_checkShow, &QCheckBox::toggled, m_syntaxGroupBox, &ElementEditor::setCurrentShown);
    connect(m_syntaxGroupBox, &ElementEditor::currentElementChanged, this, &SoTreeViewPreferences::showElement);
    m_syntaxGroupBox->setGroup(SoPreferenceStore::TreeViewGroup);
}

void SoTreeViewPreferences::reInit()
{
    m_syntaxGroupBox->load();
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    m_checkSelectedNode->setChecked(store.readHighlightSelectedNode(SoPreferenceStore::TreeViewGroup));
    m_checkBaseKit->setChecked(store.readRealNodekitsCounter(SoPreferenceStore::TreeViewGroup));
}

void SoTreeViewPreferences::save()
{
    m_syntaxGroupBox->save();
    SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    store.writeHighlightSelectedNode(SoPreferenceStore::TreeViewGroup, m_checkSelectedNode->isChecked());
    store.writeRealNodekitsCounter(SoPreferenceStore::TreeViewGroup, m_checkBaseKit->isChecked());
    emit saved();
}

void SoTreeViewPreferences::showElement(const DisplayElement& element)
{
    const QSignalBlocker blocker(m_checkShow);
    m_checkShow->setChecked(element.isShown);
}
