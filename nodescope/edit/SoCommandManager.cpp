#include "SoCommandManager.h"
#include "CommandHistory.h"

#include <nodescope/mainframe/SceneFileHandler.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <QAction>
#include <QFileDialog>

SoCommandManager::SoCommandManager(QObject* parent) : QObject(parent), m_history(new CommandHistory(this)) {}

SoCommandManager::~SoCommandManager() = default;

void SoCommandManager::initialize(SoNodescopeMainFrame* frame)
{
    m_frame = frame;
    connect(m_history, &CommandHistory::undoAvailable, m_frame->action(ActionId::Undo), &QAction::setEnabled);
    connect(m_history, &CommandHistory::redoAvailable, m_frame->action(ActionId::Redo), &QAction::setEnabled);
    for (ActionId id : {ActionId::Undo, ActionId::Redo, ActionId::Reload})
        m_frame->action(id)->setEnabled(false);
}

bool SoCommandManager::isModified() const
{
    return m_history->isModified();
}

void SoCommandManager::reloadFile()
{
    m_frame->sceneFiles()->reload();
}

void SoCommandManager::closeApp()
{
    m_frame->close();
}

void SoCommandManager::openFile()
{
    const QString folder = qEnvironmentVariable("VXLHOME") + "/data/models";
    const QString filters = tr("Vexel files (*.vx *.vxz *.vx.gz)") + ";;" + tr("All files (*.*)");
    const QString file = QFileDialog::getOpenFileName(m_frame, tr("open file"), folder, filters);
    if (!file.isEmpty())
        m_frame->openFile(file);
}

void SoCommandManager::openFileRecent()
{
    if (const auto* action = qobject_cast<QAction*>(sender()))
        m_frame->sceneFiles()->openRecentFile(action->data().toString());
}

void SoCommandManager::newFile()
{
    closeFile(); // an empty scene is what closing leaves
}

void SoCommandManager::saveFile()
{
    clearUndoCommand();
    m_frame->sceneFiles()->save();
}

void SoCommandManager::saveAsFile()
{
    clearUndoCommand();
    m_frame->sceneFiles()->saveAs(nullptr);
}

void SoCommandManager::closeFile()
{
    if (!m_frame->sceneFiles()->newScene())
        return;
    clearUndoCommand();
    m_frame->action(ActionId::Reload)->setEnabled(false);
}

void SoCommandManager::undo()
{
    m_history->undo();
}

void SoCommandManager::redo()
{
    m_history->redo();
}

bool SoCommandManager::addCommand(NscCommand* command)
{
    return m_history->add(command);
}

void SoCommandManager::clearUndoCommand()
{
    m_history->clear();
}
