#include "MessageDock.h"
#include "PanelDocks.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/panels/MessagePanel.h>

#include <QAction>
#include <QStatusBar>

MessageDock::MessageDock(SoNodescopeMainFrame& frame)
    : QObject(&frame), m_frame(frame), m_panel(new MessagePanel),
      m_dock(PanelDocks::add(frame, PanelDocks::Panel::Messages, m_panel))
{
    frame.tabifyDockWidget(PanelDocks::find(frame, PanelDocks::Panel::FieldWatch), m_dock);
    m_dock->hide();
    connect(m_dock->toggleViewAction(), &QAction::triggered, m_dock, &QWidget::raise);
}

void MessageDock::begin(int problems)
{
    m_dock->hide(); // whatever was left open
    connect(&m_panel->log(), &MessageLog::rowsInserted, this, &MessageDock::showOnce);
    m_panel->log().takeOver();
    if (m_panel->log().rowCount() > 0)
        showOnce();
    if (problems == 0)
        return;
    m_dock->raise();
    const QString summary = problems == 1 ? tr("One problem with plug-ins: see Messages")
                                          : tr("%1 problems with plug-ins: see Messages").arg(problems);
    QStatusBar* const bar = m_frame.statusBar();
    // Later, for the scene that is shown next clears the bar.
    QMetaObject::invokeMethod(
        bar, [bar, summary] { bar->showMessage(summary); }, Qt::QueuedConnection);
}

void MessageDock::showOnce()
{
    if (!m_wasShown)
        m_dock->show();
    m_wasShown = true;
}
