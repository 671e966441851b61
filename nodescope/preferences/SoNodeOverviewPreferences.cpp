#include "SoNodeOverviewPreferences.h"
#include "SoPreferenceStore.h"

SoNodeOverviewPreferences::SoNodeOverviewPreferences(QWidget* parent) : QWidget(parent)
{
    setupUi(this);
    m_syntaxGroupBox->setGroup(SoPreferenceStore::NodeOverviewGroup);
}

void SoNodeOverviewPreferences::reInit()
{
    m_syntaxGroupBox->load();
    m_checkPart->setChecked(SoPreferenceStore::getInstance()->readShowCatalogPart(SoPreferenceStore::NodeOverviewGroup));
}

void SoNodeOverviewPreferences::save()
{
    m_syntaxGroupBox->save();
    SoPreferenceStore::getInstance()->writeShowCatalogPart(SoPreferenceStore::NodeOverviewGroup, m_checkPart->isChecked());
    emit saved();
}
