#include "SoFieldWatchState.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/panels/SoFieldWatch.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>

SoFieldWatchState::SoFieldWatchState(SoFieldWatch& watch, SoNodescopeMainFrame& frame, SoCommandManager& commandManager)
    : SoNodescopeState(&watch), m_watch(watch), m_frame(frame), m_commandManager(commandManager)
{
}

void SoFieldWatchState::activate()
{
    connect(m_frame.action(ActionId::Delete), &QAction::triggered, this, &SoFieldWatchState::deleteCurrent);
    connect(&m_watch, &SoFieldWatch::currentItemChanged, this, &SoFieldWatchState::updateItemFieldWatchAction);
    connect(&m_watch, &SoFieldWatch::listCleared, this, &SoFieldWatchState::listClearedSlot);
    updateItemFieldWatchAction(m_watch.currentItem());
}

void SoFieldWatchState::deactivate()
{
    m_frame.action(ActionId::Delete)->disconnect(this);
    disconnect(&m_watch, &SoFieldWatch::currentItemChanged, this, nullptr);
    disconnect(&m_watch, &SoFieldWatch::listCleared, this, nullptr);
}

void SoFieldWatchState::deleteCurrent()
{
    m_commandManager.deleteFieldWatch();
}

void SoFieldWatchState::updateItemFieldWatchAction(QTreeWidgetItem* current, QTreeWidgetItem*)
{
    m_frame.action(ActionId::Delete)->setEnabled(current);
}

void SoFieldWatchState::listClearedSlot()
{
    m_frame.action(ActionId::Delete)->setEnabled(false);
}

void SoFieldWatchState::contextMenu(QContextMenuEvent* event)
{
    event->accept();
    // While the menu is open the entry may go with its node, and the menu with the inspection.
    const QPersistentModelIndex entry = m_watch.indexAt(event->pos());
    if (!entry.isValid())
        return;
    const QPointer<QMenu> menu = new QMenu(&m_watch);
    const QAction* const shared = m_frame.action(ActionId::Delete);
    connect(menu->addAction(shared->icon(), shared->text()), &QAction::triggered, this, [this, entry] {
        if (entry.isValid())
            m_commandManager.deleteFieldWatch(m_watch.topLevelItem(entry.row()));
    });
    menu->exec(event->globalPos());
    delete menu;
}
