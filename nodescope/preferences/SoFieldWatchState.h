#pragma once

#include <nodescope/preferences/SoNodescopeState.h>

class QTreeWidgetItem;
class SoCommandManager;
class SoFieldWatch;
class SoNodescopeMainFrame;

/** The shared actions and the context menu of the field watch: there is only the removal of entries. */
class NODESCOPE_API SoFieldWatchState : public SoNodescopeState {
    Q_OBJECT
public:
    /** The state goes with the field watch. */
    SoFieldWatchState(SoFieldWatch& watch, SoNodescopeMainFrame& frame, SoCommandManager& commandManager);

    void activate() override;
    void deactivate() override;
    void contextMenu(QContextMenuEvent* event) override;

public slots:
    void updateItemFieldWatchAction(QTreeWidgetItem* current, QTreeWidgetItem* previous = nullptr);
    void listClearedSlot();

private:
    void deleteCurrent();

    SoFieldWatch& m_watch;
    SoNodescopeMainFrame& m_frame;
    SoCommandManager& m_commandManager;
};
