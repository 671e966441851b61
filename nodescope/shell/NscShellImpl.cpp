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

/** Layouts are stored by object names. */
void giveName(QWidget& widget)
{
    if (widget.objectName().isEmpty())
        widget.setObjectName(widget.windowTitle());
}

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
    m_mainFrame.reset(); // an extension may be among its children, and is forgotten when it goes
    instance = nullptr;
}

void NscShellImpl::forgetWithItsEnd(NscExtension* extension)
{
    if (!m_followed.insert(extension).second)
        return;
    connect(extension, &QObject::destroyed, this, [this, extension] {
        unregisterExtension(extension);
        while (viewToggle(extension))
            removeViewToggle(extension);
        removePreferencePage(extension);
        m_followed.erase(extension);
    });
}

void NscShellImpl::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    giveName(*dock);
    dock->setParent(m_mainFrame.get());
    if (!m_mainFrame->restoreDockWidget(dock)) // one that comes after the layout was restored
        m_mainFrame->addDockWidget(area, dock);
}

void NscShellImpl::removeDockWidget(QDockWidget* dock)
{
    if (m_mainFrame->dockWidgetArea(dock) != Qt::NoDockWidgetArea)
        m_mainFrame->removeDockWidget(dock);
}

std::vector<NscExtension*> NscShellImpl::getExtensions(SoType type) const
{
    return m_editors.find(type);
}

void NscShellImpl::registerExtension(SoType type, bool exact, NscExtension* extension)
{
    m_editors.add(type, exact, extension);
    forgetWithItsEnd(extension);
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
    forgetWithItsEnd(extension);
}

void NscShellImpl::unregisterExtension(NscExtension* extension)
{
    m_editors.remove(extension);
}

void NscShellImpl::removeMenu(QMenu* menu)
{
    m_mainFrame->menuBar()->removeAction(menu->menuAction());
}

QAction* NscShellImpl::viewToggle(const NscExtension* extension) const
{
    const auto entry = std::find_if(m_viewToggles.begin(), m_viewToggles.end(),
                                    [&](const auto& toggle) { return toggle.second == extension; });
    return entry == m_viewToggles.end() ? nullptr : entry->first;
}

void NscShellImpl::removeViewToggle(NscExtension* extension)
{
    QAction* const toggle = viewToggle(extension);
    m_viewToggles.erase(toggle);
    delete toggle; // which takes it out of the menu and cuts its connection
}

void NscShellImpl::setViewToggle(NscExtension* extension, bool isVisible)
{
    if (QAction* const toggle = viewToggle(extension)) {
        const QSignalBlocker noCall(toggle);
        toggle->setChecked(isVisible);
    }
}

void NscShellImpl::addPreferencePage(NscExtension* extension, QWidget* page, const char* loadSlot, const char* saveSlot)
{
    m_preferencePages[extension] = {page, loadSlot, saveSlot};
    forgetWithItsEnd(extension);
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
    giveName(*bar);
    bar->setParent(m_mainFrame.get());
    m_mainFrame->addToolBar(area, bar);
}

void NscShellImpl::removeToolBar(QToolBar* bar)
{
    if (m_mainFrame->toolBarArea(bar) != Qt::NoToolBarArea)
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
