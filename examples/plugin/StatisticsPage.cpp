#include "StatisticsPage.h"

#include <QCheckBox>
#include <QSettings>
#include <QVBoxLayout>

namespace {

const QString Company = QStringLiteral("Nodescope");
const QString Program = QStringLiteral("Statistics");
const QString Counts_at_once = QStringLiteral("countsAtOnce");

} // namespace

StatisticsPage::StatisticsPage() : m_countsAtOnce(new QCheckBox(tr("&Count a node as soon as it is selected")))
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_countsAtOnce);
    layout->addStretch();
}

// [preferences]
bool StatisticsPage::countsAtOnce()
{
    return QSettings(Company, Program).value(Counts_at_once, true).toBool();
}

void StatisticsPage::load()
{
    m_countsAtOnce->setChecked(countsAtOnce());
}

void StatisticsPage::save()
{
    QSettings(Company, Program).setValue(Counts_at_once, m_countsAtOnce->isChecked());
}
// [end]
