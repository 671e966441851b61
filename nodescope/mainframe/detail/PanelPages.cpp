#include "PanelPages.h"

#include <nodescope/preferences/SoFieldWatchPreferences.h>
#include <nodescope/preferences/SoNodeOverviewPreferences.h>
#include <nodescope/preferences/SoTreeViewPreferences.h>
#include <nodescope/preferences/SoViewerPreferences.h>

#include <QCoreApplication>

PanelPages::~PanelPages()
{
    for (const QPointer<QWidget>& page : m_pages)
        delete page;
}

std::vector<PreferenceRecord> PanelPages::records(bool hasView)
{
    std::vector<PreferenceRecord> records;
    const auto name = [](const char* text) { return QCoreApplication::translate("PanelPages", text); };
    if (hasView)
        records.push_back(record<SoViewerPreferences>(ViewPage, name(QT_TRANSLATE_NOOP("PanelPages", "Environment"))));
    records.push_back(record<SoTreeViewPreferences>(TreePage, name(QT_TRANSLATE_NOOP("PanelPages", "Tree View"))));
    records.push_back(
        record<SoNodeOverviewPreferences>(OverviewPage, name(QT_TRANSLATE_NOOP("PanelPages", "Node Overview"))));
    records.push_back(record<SoFieldWatchPreferences>(WatchPage, name(QT_TRANSLATE_NOOP("PanelPages", "Field Watch"))));
    return records;
}

template <class Widget>
PreferenceRecord PanelPages::record(Page page, const QString& name)
{
    if (!m_pages[page]) {
        auto* const made = new Widget;
        QObject::connect(made, &Widget::saved, m_apply);
        m_pages[page] = made;
    }
    return {m_pages[page], name, m_pages[page], SLOT(reInit()), SLOT(save())};
}
