#include "PreferencePages.h"

#include <extension/NscExtension.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <nodescope/preferences/SoNodescopePreferences.h>
#include <nodescope/shell/NscShellImpl.h>

#include <QPointer>

std::vector<PreferenceRecord> PreferencePages::gather()
{
    std::vector<PreferenceRecord> pages = SoNodescopeViewer::getInstance()->preferencePages();
    for (const auto& [extension, page] : NscShellImpl::getInstance()->getPreferencePages()) {
        if (page.page)
            pages.push_back(
                {page.page, extension->getInfo().name.toQString(), extension, page.loadSlot, page.saveSlot});
    }
    return pages;
}

void PreferencePages::edit()
{
    // The inspection, and with it the dialog, may end while the dialog is open.
    const QPointer<SoNodescopePreferences> dialog =
        new SoNodescopePreferences(gather(), NscShellImpl::getInstance()->getMainFrame());
    dialog->exec();
    delete dialog;
}
