#include "ViewerPages.h"

#include <nodescope/preferences/SoTreeViewPreferences.h>
#include <nodescope/preferences/SoViewerPreferences.h>

#include <QCoreApplication>

ViewerPages::~ViewerPages()
{
    delete m_viewPage;
    delete m_treePage;
}

std::vector<PreferenceRecord> ViewerPages::records(bool hasView)
{
    std::vector<PreferenceRecord> records;
    if (hasView)
        records.push_back(
            record<SoViewerPreferences>(m_viewPage, QCoreApplication::translate("ViewerPages", "Environment")));
    records.push_back(
        record<SoTreeViewPreferences>(m_treePage, QCoreApplication::translate("ViewerPages", "Tree View")));
    return records;
}

template <class Page>
PreferenceRecord ViewerPages::record(QPointer<QWidget>& page, const QString& name)
{
    if (!page) {
        auto* made = new Page;
        QObject::connect(made, &Page::saved, m_apply);
        page = made;
    }
    return {page, name, page, SLOT(reInit()), SLOT(save())};
}
