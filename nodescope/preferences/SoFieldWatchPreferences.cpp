#include "SoFieldWatchPreferences.h"
#include "SoPreferenceStore.h"

SoFieldWatchPreferences::SoFieldWatchPreferences(QWidget* parent) : QWidget(parent)
{
    setupUi(this);
    setObjectName(QStringLiteral("nodescopefieldwatch_preferences"));
    m_syntaxGroupBox->setGroup(SoPreferenceStore::FieldWatchGroup);
}

void SoFieldWatchPreferences::reInit()
{
    m_syntaxGroupBox->load();
}

void SoFieldWatchPreferences::save()
{
    m_syntaxGroupBox->save();
    emit saved();
}
