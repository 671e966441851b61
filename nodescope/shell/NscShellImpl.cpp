#include "NscShellImpl.h"

#include <extension/NscExtension.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <vexel/base/SoError.h>

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

namespace {

NscShellImpl* instance = nullptr;

} // namespace

NscShellImpl* NscShellImpl::getInstance(QWidget* parent)
{
    if (!instance)
        createInstance(parent);
    return instance;
}

void NscShellImpl::createInstance(QWidget* parent)
{
    if (instance)
        SoError::post("NscShellImpl::createInstance, instance already exists.");
    else
        instance = new NscShellImpl(parent);
}

void NscShellImpl::deleteInstance()
{
    delete instance;
}

NscShellImpl::NscShellImpl(QWidget* parent) : m_mainFrame(std::make_unique<SoNodescopeMainFrame>(parent)) {}

NscShellImpl::~NscShellImpl()
{
    instance = nullptr;
}

void NscShellImpl::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    dock->setParent(m_mainFrame.get());
    m_mainFrame->addDockWidget(area, dock);
}

void NscShellImpl::removeDockWidget(QDockWidget* dock)
{
    m_mainFrame->removeDockWidget(dock);
}

std::vector<NscExtension*> NscShellImpl::getExtensions(SoType type) const
{
    return m_editors.find(type);
}

void NscShellImpl::registerExtension(SoType type, bool exact, NscExtension* extension)
{
    m_editors.add(type, exact, extension);
}

void NscShellImpl::addMenu(QMenu* menu)
{
    m_mainFrame->menuBar()->insertMenu(m_mainFrame->helpMenuAction(), menu);
}

void NscShellImpl::addViewToggle(NscExtension* extension, bool isVisible)
{
    auto* toggle = new QAction(extension->getInfo().name.toQString(), this);
    toggle->setCheckable(true);
    toggle->setChecked(isVisible);
    connect(toggle, SIGNAL(toggled(bool)), this, SLOT(s_viewChanged(bool)));
    m_mainFrame->viewMenu()->addAction(toggle);
    m_viewToggles[toggle] = extension;
}

void NscShellImpl::unregisterExtension(NscExtension* extension)
{
    m_editors.remove(extension);
}

void NscShellImpl::removeMenu(QMenu* menu)
{
    m_mainFrame->menuBar()->removeAction(menu->menuAction());
}

void NscShellImpl::removeViewToggle(NscExtension* extension)
{
    const auto entry = std::find_if(m_viewToggles.begin(), m_viewToggles.end(),
                                    [&](const auto& toggle) { return toggle.second == extension; });
    if (entry == m_viewToggles.end())
        return;
    QAction* const toggle = entry->first;
    m_viewToggles.erase(entry);
    delete toggle; // which takes it out of the menu and cuts its connection
}

void NscShellImpl::addPreferencePage(NscExtension* extension, QWidget* page, const char* loadSlot, const char* saveSlot)
{
    m_preferencePages[extension] = {page, loadSlot, saveSlot};
}

void NscShellImpl::removePreferencePage(NscExtension* extension)
{
    m_preferencePages.erase(extension);
}

void NscShellImpl::clearStatusMessage()
{
    m_mainFrame->statusBar()->clearMessage();
}

void NscShellImpl::addStatusWidget(QWidget* widget, bool isPermanent, int stretch)
{
    QStatusBar* const bar = m_mainFrame->statusBar();
    widget->setParent(bar);
    if (isPermanent)
        bar->addPermanentWidget(widget, stretch);
    else
        bar->addWidget(widget, stretch);
}

void NscShellImpl::showStatusMessage(const SbString& text, int timeout)
{
    m_mainFrame->statusBar()->showMessage(QString::fromLatin1(text.toLatin1()), timeout);
}

void NscShellImpl::removeStatusWidget(QWidget* widget)
{
    m_mainFrame->statusBar()->removeWidget(widget);
}

void NscShellImpl::addToolBar(QToolBar* bar, Qt::ToolBarArea area)
{
    bar->setParent(m_mainFrame.get());
    m_mainFrame->addToolBar(area, bar);
}

void NscShellImpl::removeToolBar(QToolBar* bar)
{
    m_mainFrame->removeToolBar(bar);
}

void NscShellImpl::s_viewChanged(bool isVisible)
{
    const auto entry = m_viewToggles.find(qobject_cast<QAction*>(sender()));
    if (entry == m_viewToggles.end())
        return;
    if (isVisible)
        entry->second->show();
    else
        entry->second->hide();
}
