#pragma once

#include <QDockWidget>

class SoNodescopeMainFrame;

/** The docks of the main window. */
namespace PanelDocks {

enum class Panel { TreeView, NodeOverview, FieldWatch, Messages };

/** Puts a panel's dock into the main window, with an entry in its view menu. */
QDockWidget* add(SoNodescopeMainFrame& frame, Panel panel, QWidget* content);
/** The dock of a panel; null: there is none. */
QDockWidget* find(const SoNodescopeMainFrame& frame, Panel panel);
/** Makes the dock of the 3D view the central widget. */
QDockWidget* addSceneView(SoNodescopeMainFrame& frame);

} // namespace PanelDocks
