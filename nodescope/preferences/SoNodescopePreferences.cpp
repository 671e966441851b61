#include "SoNodescopePreferences.h"
#include "SenderObject.h"

SoNodescopePreferences::SoNodescopePreferences(const std::vector<PreferenceRecord>& pages, QWidget* parent,
                                               const char* name, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setupUi(this);
    if (name)
        setObjectName(QString::fromLatin1(name));
    delete m_widgetStack->widget(0); // designer puts one in
    for (const PreferenceRecord& record : pages)
        addPage(record);
    m_preferenceList->setMinimumWidth(m_preferenceList->sizeHintForColumn(0) + 2 * m_preferenceList->frameWidth());
    connect(m_preferenceList, &QListWidget::currentItemChanged, this, &SoNodescopePreferences::raiseWidget);
    m_preferenceList->setCurrentRow(0);
}

SoNodescopePreferences::~SoNodescopePreferences()
{
    m_senders.clear();
    for (int i = m_widgetStack->count() - 1; i >= 0; --i) {
        QWidget* const page = m_widgetStack->widget(i);
        m_widgetStack->removeWidget(page);
        page->setParent(nullptr);
    }
}

void SoNodescopePreferences::addPage(const PreferenceRecord& record)
{
    m_preferenceList->addItem(record.name);
    m_widgetStack->addWidget(record.page);
    m_senders.push_back(record.receiver ? std::make_unique<SenderObject>() : nullptr);
    if (!record.receiver)
        return;
    // The form connected OK to accept() before: the dialog closes, then the pages are saved.
    if (!record.saveSlot.isEmpty()) {
        connect(m_okButton, SIGNAL(clicked()), record.receiver, record.saveSlot.constData());
        connect(m_applyButton, SIGNAL(clicked()), record.receiver, record.saveSlot.constData());
    }
    if (!record.loadSlot.isEmpty())
        connect(m_senders.back().get(), SIGNAL(initSignal()), record.receiver, record.loadSlot.constData());
    emit m_senders.back()->initSignal();
}

void SoNodescopePreferences::raiseWidget(QListWidgetItem* current, QListWidgetItem*)
{
    m_widgetStack->setCurrentIndex(m_preferenceList->row(current));
}
