#include "PanelDocks.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <QCoreApplication>
#include <QMenu>

namespace {

struct DockRow {
    const char* name; ///< by which a stored layout knows the dock
    const char* title;
    Qt::DockWidgetArea area;
};

constexpr DockRow Rows[] = {
    {"dockMainWin", QT_TRANSLATE_NOOP("PanelDocks", "Tree View"), Qt::LeftDockWidgetArea},
    {"dockNodeOverview", QT_TRANSLATE_NOOP("PanelDocks", "Node Overview"), Qt::RightDockWidgetArea},
    {"dockFieldWatch", QT_TRANSLATE_NOOP("PanelDocks", "Field Watch"), Qt::BottomDockWidgetArea},
    {"dockMessages", QT_TRANSLATE_NOOP("PanelDocks", "Messages"), Qt::BottomDockWidgetArea},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("PanelDocks", text);
}

} // namespace

QDockWidget* PanelDocks::add(SoNodescopeMainFrame& frame, Panel panel, QWidget* content)
{
    const DockRow& row = Rows[int(panel)];
    auto* dock = new QDockWidget(QLatin1String(row.name), &frame);
    dock->setObjectName(QLatin1String(row.name));
    dock->setWindowTitle(translated(row.title));
    dock->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    dock->setWidget(content);
    frame.addDockWidget(row.area, dock);
    frame.viewMenu()->addAction(dock->toggleViewAction());
    return dock;
}

QDockWidget* PanelDocks::find(const SoNodescopeMainFrame& frame, Panel panel)
{
    return frame.findChild<QDockWidget*>(QLatin1String(Rows[int(panel)].name));
}

QDockWidget* PanelDocks::addSceneView(SoNodescopeMainFrame& frame)
{
    auto* dock = new QDockWidget(translated(QT_TRANSLATE_NOOP("PanelDocks", "Open Vexel SceneViewer")), &frame);
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    frame.setCentralWidget(dock);
    return dock;
}
