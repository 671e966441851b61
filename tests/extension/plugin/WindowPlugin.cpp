#include "WindowExtension.h"

#include <extension/NscPlugin.h>
#include <extension/NscShell.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/fields/SoSFTime.h>

#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <stdexcept>

WindowExtension::WindowExtension(const SbString& name)
    : NscExtension({name}), m_dock(new QDockWidget("Loaded Dock")), m_bar(new QToolBar("Loaded Bar")),
      m_menu(new QMenu("&Loaded")), m_page(new QLabel("Loaded Page")), m_status(new QLabel("Loaded Status"))
{
}

WindowExtension::~WindowExtension()
{
    SoPreferences::setValue("TEST_SHELL_AT_END", NscShell::getInstance() ? "there" : "gone");
    for (QWidget* widget : {static_cast<QWidget*>(m_dock), static_cast<QWidget*>(m_bar), static_cast<QWidget*>(m_menu),
                            static_cast<QWidget*>(m_page), static_cast<QWidget*>(m_status)})
        delete widget;
}

void WindowExtension::activate()
{
    NscShell& shell = *NscShell::getInstance();
    shell.addDockWidget(m_dock, Qt::RightDockWidgetArea);
    shell.addToolBar(m_bar, Qt::TopToolBarArea);
    shell.addMenu(m_menu);
    shell.addStatusWidget(m_status, true, 0);
    shell.addViewToggle(this, true);
    shell.addPreferencePage(this, m_page, SLOT(load()), SLOT(save()));
    shell.registerExtension(SoSFTime::getClassTypeId(), true, this);
    if (getInfo().name == "Fails")
        throw std::runtime_error("after it registered");
}

void WindowExtension::show()
{
    m_dock->show();
}

void WindowExtension::hide()
{
    m_dock->hide();
}

void WindowExtension::load()
{
    m_page->setText("loaded");
}

void WindowExtension::save()
{
    m_page->setText("saved");
}

namespace {

class WindowPlugin : public NscPlugin {
public:
    SbString getName() const override { return "WindowPlugin"; }
    NscExtension* createExtension(const SbString& name) override { return new WindowExtension(name); }
};

} // namespace

NSC_PLUGIN(WindowPlugin)
