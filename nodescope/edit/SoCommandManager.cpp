#include "SoCommandManager.h"
#include "CommandHistory.h"
#include "FieldWatches.h"
#include "OverviewTabs.h"
#include "SoNodeOverrideCommand.h"
#include "SoNodescopeAddDialog.h"
#include "SoTreeAddNodeCommand.h"
#include "SoTreeDeleteNodeCommand.h"
#include "SoTreeMoveNodeCommand.h"
#include "detail/PreferencePages.h"
#include "detail/SceneClipboard.h"

#include <extension/NscServices.h>
#include <nodescope/mainframe/OnlineReference.h>
#include <nodescope/mainframe/SceneFileHandler.h>
#include <nodescope/mainframe/SoAboutNodescope.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoFieldWatch.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/NscFindDialog.h>
#include <nodescope/tree/SoGraphTopologyManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/base/SbName.h>
#include <vexel/nodes/SoNode.h>

#include <QAction>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>

SoCommandManager::SoCommandManager(QObject* parent)
    : QObject(parent), m_overviewTabs(std::make_unique<OverviewTabs>()), m_fieldWatches(new FieldWatches(this)),
      m_history(new CommandHistory(this))
{
}

SoCommandManager::~SoCommandManager()
{
    if (m_clipboardNode)
        m_clipboardNode->unref();
}

void SoCommandManager::initialize(SoNodescopeMainFrame* frame)
{
    m_frame = frame;
    connect(m_history, &CommandHistory::undoAvailable, m_frame->action(ActionId::Undo), &QAction::setEnabled);
    connect(m_history, &CommandHistory::redoAvailable, m_frame->action(ActionId::Redo), &QAction::setEnabled);
    for (ActionId id : {ActionId::Undo, ActionId::Redo, ActionId::Reload})
        m_frame->action(id)->setEnabled(false);
}

void SoCommandManager::setTreeView(SoNodescopeTreeView* treeView)
{
    delete m_addDialog; // it serves one tree
    if (m_treeView) {
        m_treeView->disconnect(this);
        m_treeView->topologyManager().disconnect(this);
    }
    m_treeView = treeView;
    m_overviewTabs->setTreeView(treeView);
    if (m_treeView) {
        connect(m_treeView, &SoNodescopeTreeView::deleteRequested, this, &SoCommandManager::treeDeleteNode);
        connect(m_treeView, &SoNodescopeTreeView::moveRequested, this, &SoCommandManager::treeMoveNode);
        connect(m_treeView, &SoNodescopeTreeView::insertRequested, this, &SoCommandManager::treeInsertNode);
        connect(&m_treeView->topologyManager(), &SoGraphTopologyManager::fileRowsReloaded, this,
                &SoCommandManager::clearUndoCommand);
    }
}

SoNodescopeTreeView* SoCommandManager::treeView() const
{
    return m_treeView;
}

void SoCommandManager::setNodeEdition(SoNodescopeEdition* edition)
{
    if (SoNodescopeEdition* const former = m_overviewTabs->edition()) {
        former->disconnect(this);
        former->overview().disconnect(this);
        former->fieldWatch().disconnect(this);
    }
    m_overviewTabs->setEdition(edition);
    m_fieldWatches->setEdition(edition);
    if (!edition)
        return;
    const SoTabNodeOverview* const overview = &edition->overview();
    connect(overview, &SoTabNodeOverview::overrideRequested, this, &SoCommandManager::nodeSetOverride);
    connect(overview, &SoTabNodeOverview::nodeNameChanged, this, &SoCommandManager::nodeNameChanged);
    connect(overview, &SoTabNodeOverview::currentPageChanged, this, &SoCommandManager::highlightNodeItem);
    connect(edition, &SoNodescopeEdition::fieldWatchRequested, this,
            qOverload<SoFieldItem*>(&SoCommandManager::setFieldWatch));
    const SoFieldWatch* const watch = &edition->fieldWatch();
    connect(watch, &SoFieldWatch::rowDropped, this, qOverload<SoFieldItem*, QPoint>(&SoCommandManager::setFieldWatch));
    connect(watch, &SoFieldWatch::entrySelected, this, &SoCommandManager::setFieldEditorFromWatch);
    connect(watch, &SoFieldWatch::overviewRequested, this, &SoCommandManager::setNodeOverviewFromWatch);
    connect(watch, &SoFieldWatch::deleteRequested, this, &SoCommandManager::deleteFieldWatch);
}

SoTreeViewItem* SoCommandManager::currentRow() const
{
    return m_treeView ? m_treeView->currentRow() : nullptr;
}

bool SoCommandManager::isModified() const
{
    return m_history->isModified();
}

void SoCommandManager::reloadFile()
{
    m_frame->sceneFiles()->reload();
}

void SoCommandManager::printFile()
{
    emit m_frame->exportRequested();
}

void SoCommandManager::printQt()
{
    emit m_frame->printRequested();
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

void SoCommandManager::cut()
{
    if (m_treeView && m_treeView->selectionRoot())
        SceneClipboard::cut(*m_treeView->selectionRoot());
}

void SoCommandManager::copy()
{
    if (m_treeView && m_treeView->selectionRoot())
        SceneClipboard::copy(*m_treeView->selectionRoot());
}

void SoCommandManager::paste()
{
    if (m_treeView && m_treeView->selectionRoot())
        SceneClipboard::paste(*m_treeView->selectionRoot());
}

void SoCommandManager::setScene(SoNode* scene, bool clearsUndo)
{
    m_frame->sceneFiles()->setScene(scene, clearsUndo);
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

void SoCommandManager::nodeSetOverride(bool on)
{
    if (SoNode* const node = m_overviewTabs->shownNode())
        addCommand(new SoNodeOverrideCommand(node, on));
}

void SoCommandManager::treeDeleteNode(SoTreeViewItem* item)
{
    bool canDelete = false;
    auto command = std::make_unique<SoTreeDeleteNodeCommand>(*this, item ? item : currentRow(), canDelete);
    if (canDelete)
        addCommand(command.release());
}

void SoCommandManager::treeMoveNode(SoTreeViewItem* itemToMove, SoTreeViewItem* itemInsertAfter, bool spaceBarPressed)
{
    auto command = std::make_unique<SoTreeMoveNodeCommand>(*this, itemToMove, itemInsertAfter, spaceBarPressed);
    if (command->isMoved())
        addCommand(command.release());
}

void SoCommandManager::treeInsertNode(const QString& typeName)
{
    auto command = std::make_unique<SoTreeAddNodeCommand>(*this, currentRow());
    if (command->addType(SbName(typeName.toLatin1().constData())))
        static_cast<void>(command.release()); // the history has it
}

void SoCommandManager::copyNode()
{
    if (!currentRow())
        return;
    SoNode* const copy = currentRow()->node()->copy(true);
    copy->ref();
    if (m_clipboardNode)
        m_clipboardNode->unref();
    m_clipboardNode = copy;
}

void SoCommandManager::cutNode()
{
    if (!currentRow())
        return;
    copyNode();
    bool canDelete = false;
    addCommand(new SoTreeDeleteNodeCommand(*this, currentRow(), canDelete)); // also one that deleted nothing
}

void SoCommandManager::pasteNode()
{
    if (!m_clipboardNode)
        return;
    auto* const command = new SoTreeAddNodeCommand(*this, currentRow());
    command->addNode(m_clipboardNode);
    addCommand(command); // once more, or for the first time when nothing was added
}

void SoCommandManager::ignoreEnable()
{
    if (SoTreeViewItem* const row = currentRow())
        row->setIgnored(!row->isIgnored());
}

void SoCommandManager::treeAddNode(SoTreeViewItem* item)
{
    if (item && m_treeView)
        m_treeView->setCurrentItem(item);
    if (!m_treeView || !m_treeView->currentRow())
        return;
    if (!m_addDialog)
        m_addDialog = new SoNodescopeAddDialog(*m_treeView, m_frame);
    m_addDialog->show();
    m_addDialog->activateWindow();
}

void SoCommandManager::saveSubSceneGraph(SoTreeViewItem* item)
{
    if (!item && m_treeView)
        item = m_treeView->currentRow();
    if (item)
        m_frame->sceneFiles()->saveAs(item->node());
}

void SoCommandManager::expandAll(QTreeWidgetItem* startItem)
{
    if (!startItem && m_treeView)
        startItem = m_treeView->currentRow();
    if (startItem)
        m_treeView->expandBelow(startItem);
}

void SoCommandManager::showAllReferences(SoTreeViewItem* item)
{
    if (m_treeView)
        m_treeView->showAllReferences(item);
}

void SoCommandManager::removeAllReferences(SoTreeViewItem* item)
{
    if (m_treeView)
        m_treeView->removeAllReferences(item);
}

void SoCommandManager::nextReference()
{
    if (m_treeView)
        m_treeView->nextReference();
}

void SoCommandManager::previousReference()
{
    if (m_treeView)
        m_treeView->previousReference();
}

void SoCommandManager::toggleBookmark()
{
    if (m_treeView)
        m_treeView->toggleBookmark();
}

void SoCommandManager::nextBookmark()
{
    if (m_treeView)
        m_treeView->nextBookmark();
}

void SoCommandManager::previousBookmark()
{
    if (m_treeView)
        m_treeView->previousBookmark();
}

void SoCommandManager::clearBookmark()
{
    if (m_treeView)
        m_treeView->clearBookmark();
}

NscFindDialog& SoCommandManager::findDialog()
{
    if (!m_findDialog) {
        m_findDialog = new NscFindDialog(m_frame->searchBox(), m_frame);
        connect(m_findDialog, &NscFindDialog::findRequested, this, qOverload<>(&SoCommandManager::find));
    }
    return *m_findDialog;
}

void SoCommandManager::showFindDialog()
{
    NscFindDialog& dialog = findDialog();
    dialog.show();
    dialog.activateWindow(); // a window that is shown gets the keyboard by itself only from some window managers
    dialog.setFocus();
}

void SoCommandManager::find()
{
    find(findDialog().flags());
}

void SoCommandManager::findNext()
{
    find(findDialog().flags() & ~NodeSearch::Backward);
}

void SoCommandManager::findPrevious()
{
    find(findDialog().flags() | NodeSearch::Backward);
}

void SoCommandManager::find(int flags)
{
    if (!m_treeView)
        return;
    const NscFindDialog& dialog = findDialog();
    const QString text = dialog.isHidden() ? m_frame->searchBox()->currentText() : dialog.text();
    if (SoTreeViewItem* row = m_treeView->find(dialog.column(), text, flags))
        m_treeView->revealRow(row);
}

void SoCommandManager::setFilter(int filter)
{
    if (m_treeView)
        m_treeView->setFilter(filter);
}

void SoCommandManager::editPreferences()
{
    PreferencePages::edit();
}

void SoCommandManager::launchAboutNodescopeFrame()
{
    // The inspection, and with it the box, may end while the box is open.
    const QPointer<SoAboutNodescope> box = new SoAboutNodescope(m_frame);
    box->exec();
    delete box;
}

void SoCommandManager::launchNodescopeHelpViewer()
{
    QDesktopServices::openUrl(OnlineReference::toolPage());
}

void SoCommandManager::setNodeOverview(SoTreeViewItem* item, bool addTab)
{
    m_overviewTabs->show(item, addTab);
}

void SoCommandManager::selectedNodeChanged(SoFieldContainer* node)
{
    m_overviewTabs->show(node);
}

void SoCommandManager::highlightNodeItem()
{
    m_overviewTabs->highlightRow();
}

void SoCommandManager::closeNodeOverview(int index)
{
    m_overviewTabs->close(index);
}

void SoCommandManager::nodeNameChanged(SoNode* node)
{
    if (getNodeEdition()) {
        getNodeEdition()->overview().updateName(node);
        getNodeEdition()->fieldWatch().nodeNameChanged(node);
    }
    if (m_treeView)
        m_treeView->viewport()->update();
}

SoNodescopeEdition* SoCommandManager::getNodeEdition() const
{
    return m_overviewTabs->edition();
}

QList<SoTreeViewItem*> SoCommandManager::getItemOverviewList() const
{
    return m_overviewTabs->rows();
}

void SoCommandManager::setFieldWatch(SoFieldItem* fieldItem)
{
    m_fieldWatches->add(fieldItem);
}

void SoCommandManager::setFieldWatch(SoFieldItem* fieldItem, QPoint place)
{
    m_fieldWatches->add(fieldItem, place);
}

void SoCommandManager::deleteFieldWatch(QTreeWidgetItem* entry)
{
    m_fieldWatches->remove(entry);
}

void SoCommandManager::setFieldEditorFromWatch(QTreeWidgetItem* entry)
{
    NscServices::getInstance()->setSelectedNode(&static_cast<SoFieldItem*>(entry)->container());
    getNodeEdition()->setField(entry);
}

void SoCommandManager::setNodeOverviewFromWatch(QTreeWidgetItem* entry)
{
    const QPersistentModelIndex index = m_fieldWatches->treeRow(entry);
    if (m_treeView && index.isValid())
        m_overviewTabs->show(static_cast<SoTreeViewItem*>(m_treeView->itemFromIndex(index)), false);
    else
        m_overviewTabs->show(&static_cast<SoFieldItem*>(entry)->container());
}
