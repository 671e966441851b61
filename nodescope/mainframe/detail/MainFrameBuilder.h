#pragma once

#include <nodescope/mainframe/MenuTable.h>

class QMenu;
class QToolBar;
class SoNodescopeMainFrame;

/** Makes the main frame's actions, menus and tool bars from their tables. */
class MainFrameBuilder {
public:
    explicit MainFrameBuilder(SoNodescopeMainFrame& frame) : m_frame(frame) {}

    void build();

private:
    void makeActions();
    void makeSearchBox();
    void makeRecentFiles();
    void makeMenus();
    void makeToolBars();
    void fillMenu(QMenu& menu, const MenuRow& row);
    void fillToolBar(QToolBar& bar, const MenuRow& row);
    void connectAction(const ActionRow& row);
    bool managerHas(const char* slot) const;

    SoNodescopeMainFrame& m_frame;
};
