#include "SoNodescopeViewer.h"
#include "PictureExport.h"
#include "PicturePrinter.h"
#include "ShownPicture.h"
#include "SoNodescopeMainFrame.h"
#include "detail/HighlightChoice.h"
#include "detail/NodeKeeper.h"
#include "detail/PanelDocks.h"
#include "detail/PanelPages.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/panels/SoFieldWatch.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/preferences/SoFieldWatchState.h>
#include <nodescope/preferences/SoNodescopeStateManager.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/preferences/SoTreeViewState.h>
#include <nodescope/shell/NscServicesImpl.h>
#include <nodescope/shell/NscShellImpl.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/actions/SoHighlightRenderAction.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/viewer/SoQtExaminerViewer.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QContextMenuEvent>
#include <QStatusBar>

namespace {

constexpr int Tree_width = 420;
constexpr int Overview_width = 480;
constexpr int Watch_height = 140;

SoNodescopeViewer* instance = nullptr;

const QString Tree_state = QStringLiteral("TreeViewState");
const QString Watch_state = QStringLiteral("FieldWatchState");

} // namespace

SoNodescopeViewer* SoNodescopeViewer::getInstance()
{
    if (!instance)
        instance = new SoNodescopeViewer(*NscShellImpl::getInstance()->getMainFrame(), *NscServicesImpl::getInstance());
    return instance;
}

void SoNodescopeViewer::deleteInstance()
{
    delete instance;
}

SoNodescopeViewer::SoNodescopeViewer(SoNodescopeMainFrame& frame, NscServicesImpl& services)
    : m_frame(frame), m_services(services), m_sceneFiles(frame, *this), m_selection(new SoSelection),
      m_treeView(new SoNodescopeTreeView(&frame)), m_pages(std::make_unique<PanelPages>([this] { applyPreferences(); }))
{
    m_selection->ref();
    m_selection->policy.setValue(SoSelection::SINGLE);
    makePanels();
    makeEdition();
    m_treeView->setSceneGraph(m_selection);
    applyPreferences();
    connect(m_treeView, &SoNodescopeTreeView::newSceneGraph, &m_services, &NscServicesImpl::announceSceneGraph);
    connect(m_treeView, &SoNodescopeTreeView::rowSelected, this, &SoNodescopeViewer::selectNode);
    connect(m_treeView, &SoNodescopeTreeView::statusMessage, m_frame.statusBar(),
            [bar = m_frame.statusBar()](const QString& text) { bar->showMessage(text); });
    registerTreeState();
    registerWatchState();
    m_frame.setSceneFiles(&m_sceneFiles);
    connect(&m_frame, &SoNodescopeMainFrame::exportRequested, this, &SoNodescopeViewer::printFile);
    connect(&m_frame, &SoNodescopeMainFrame::printRequested, this, &SoNodescopeViewer::printQt);
    m_services.getCommandManager()->setTreeView(m_treeView);
    m_services.getCommandManager()->setNodeEdition(m_edition);
}

SoNodescopeViewer::~SoNodescopeViewer()
{
    m_frame.setSceneFiles(nullptr);
    // Blocked, not disconnected: others in Qt still have to hear when the widgets go.
    for (QWidget* const panel : {static_cast<QWidget*>(m_treeView), static_cast<QWidget*>(&m_edition->overview()),
                                 static_cast<QWidget*>(&m_edition->fieldWatch())})
        panel->blockSignals(true);
    delete m_edition;
    m_selection->deselectAll();
    m_selection->removeAllChildren();
    m_treeView->setSceneGraph(nullptr);
    m_selection->unref();
    instance = nullptr;
}

void SoNodescopeViewer::makePanels()
{
    if (m_services.isStandalone()) {
        makeExaminer();
        QDockWidget* const dock = PanelDocks::add(m_frame, PanelDocks::Panel::TreeView, m_treeView);
        m_frame.resizeDocks({dock}, {Tree_width}, Qt::Horizontal);
    } else {
        m_frame.setCentralWidget(m_treeView);
    }
    m_treeView->setFocus(); // the search box would keep the keys that edit the scene
}

void SoNodescopeViewer::makeEdition()
{
    QDockWidget* const overviewDock = PanelDocks::add(m_frame, PanelDocks::Panel::NodeOverview, nullptr);
    QDockWidget* const watchDock = PanelDocks::add(m_frame, PanelDocks::Panel::FieldWatch, nullptr);
    watchDock->setMinimumHeight(0);
    m_edition = new SoNodescopeEdition(this, overviewDock, watchDock);
    m_frame.resizeDocks({overviewDock}, {Overview_width}, Qt::Horizontal);
    m_frame.resizeDocks({watchDock}, {Watch_height}, Qt::Vertical);
    connect(m_edition, &SoNodescopeEdition::fieldSelected, &m_services, &NscServicesImpl::setSelectedField);
    connect(&m_services, &NscServices::selectedFieldChanged, m_edition, &SoNodescopeEdition::followField);
    connect(&m_edition->overview(), &SoTabNodeOverview::containerShown, this, &SoNodescopeViewer::containerShown);
    connect(m_treeView, &SoNodescopeTreeView::newSceneGraph, m_edition, &SoNodescopeEdition::clear);
}

void SoNodescopeViewer::makeExaminer()
{
    QDockWidget* const dock = PanelDocks::addSceneView(m_frame);
    m_examiner = std::make_unique<SoQtExaminerViewer>(dock, "Examiner", true, SoQtFullViewer::BUILD_ALL,
                                                      SoQtFullViewer::BROWSER);
    dock->setWidget(m_examiner->getWidget());
    m_examiner->getGLWidget()->installEventFilter(m_treeView);
    m_services.setRenderArea(m_examiner.get());
    SoSceneManager* const sceneManager = m_examiner->getSceneManager();
    m_services.setSceneManager(sceneManager);
    if (SoHighlightRenderAction* action = HighlightChoice::makeAction(sceneManager->getViewportRegion()))
        sceneManager->setGLRenderAction(action);
}

std::vector<PreferenceRecord> SoNodescopeViewer::preferencePages()
{
    return m_pages->records(m_examiner != nullptr);
}

void SoNodescopeViewer::applyPreferences()
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    m_treeView->initPreferences();
    m_edition->overview().setPreferences();
    m_edition->fieldWatch().setPreferences();
    setHighlighting(store.readHighlightSelectedNode(SoPreferenceStore::TreeViewGroup));
    if (!m_examiner)
        return;
    const QColor background = store.readBackground();
    m_examiner->setBackgroundColorRGBA(
        SbColorRGBA(float(background.redF()), float(background.greenF()), float(background.blueF()), 1));
    SoSceneManager& sceneManager = *m_examiner->getSceneManager();
    sceneManager.getGLRenderAction()->setTransparencyType(
        SoGLRenderAction::TransparencyType(store.readTransparencyType()));
    sceneManager.scheduleRedraw();
}

void SoNodescopeViewer::setHighlighting(bool on)
{
    if (!on)
        m_selection->deselectAll();
    m_highlights = on;
    m_treeView->setHighlightingEnabled(on);
    m_services.setSelection(on ? m_selection : nullptr);
    SoSceneManager* const sceneManager = m_examiner ? m_examiner->getSceneManager() : nullptr;
    if (auto* action =
            sceneManager ? dynamic_cast<SoHighlightRenderAction*>(sceneManager->getGLRenderAction()) : nullptr)
        action->setVisible(on);
    if (SoTreeViewItem* const row = on ? m_treeView->currentRow() : nullptr)
        m_treeView->onItemClicked(row, 0);
}

void SoNodescopeViewer::registerTreeState()
{
    auto* const state = new SoTreeViewState(*m_treeView, m_frame, *m_services.getCommandManager());
    SoNodescopeStateManager::registerState(Tree_state, state);
    connect(m_treeView, &SoNodescopeTreeView::focusReceived, this,
            [] { SoNodescopeStateManager::setCurrentState(Tree_state); });
    connect(m_treeView, &SoNodescopeTreeView::contextMenuRequested, state, &SoTreeViewState::contextMenu);
}

void SoNodescopeViewer::registerWatchState()
{
    SoFieldWatch& watch = m_edition->fieldWatch();
    auto* const state = new SoFieldWatchState(watch, m_frame, *m_services.getCommandManager());
    SoNodescopeStateManager::registerState(Watch_state, state);
    connect(&watch, &SoFieldWatch::focusReceived, this, [] { SoNodescopeStateManager::setCurrentState(Watch_state); });
    connect(&watch, &SoFieldWatch::contextMenuRequested, state, &SoFieldWatchState::contextMenu);
}

void SoNodescopeViewer::setSceneGraph(SoNode* root, bool resetCommands)
{
    if (resetCommands)
        m_services.getCommandManager()->clearUndoCommand();
    if (m_highlights)
        m_selection->deselectAll();
    const NodeKeeper keeper(root);
    m_selection->removeAllChildren(); // and with them the rows
    emit m_treeView->newSceneGraph(root);
    if (!root)
        return;
    m_selection->addChild(root);
    SoNodescopeStateManager::setCurrentState(Tree_state);
    m_selection->deselectAll();
    if (m_examiner)
        m_examiner->setSceneGraph(m_selection);
}

SoNode* SoNodescopeViewer::scene() const
{
    const int count = m_selection->getNumChildren();
    if (count < 2)
        return count == 0 ? nullptr : m_selection->getChild(0);
    auto* joined = new SoSeparator;
    for (int i = 0; i < count; ++i)
        joined->addChild(m_selection->getChild(i));
    return joined;
}

bool SoNodescopeViewer::isModified() const
{
    return m_services.getCommandManager()->isModified();
}

/** With the camera and the light of the view, which the scene may lack. */
ShownPicture SoNodescopeViewer::shownPicture() const
{
    const SoSceneManager* const manager = m_services.getSceneManager();
    SoNode* const root = manager ? manager->getSceneGraph() : nullptr;
    return {root ? *root : *m_selection, manager};
}

void SoNodescopeViewer::printFile()
{
    PictureExport::printFile(m_frame, shownPicture(), m_sceneFiles.currentFile());
}

void SoNodescopeViewer::printQt()
{
    PicturePrinter::preview(m_frame, shownPicture());
}

void SoNodescopeViewer::pick(const SbViewportRegion& region, SbVec2s cursor)
{
    const auto* host = m_services.isStandalone() ? nullptr : dynamic_cast<SoGuiViewer*>(m_services.getRenderArea());
    if (!host || host->isViewing() || m_selection->getNumChildren() == 0)
        return;
    auto* root = new SoSeparator;
    const NodeKeeper keeper(root);
    root->addChild(host->getCamera());
    for (int i = 0; i < m_selection->getNumChildren(); ++i)
        root->addChild(m_selection->getChild(i));
    SoRayPickAction action(region);
    action.setPoint(cursor);
    action.apply(root);
    const SoPickedPoint* const point = action.getPickedPoint();
    SoTreeViewItem* const row = point ? m_treeView->rowForPath(*point->getPath(), 1) : nullptr;
    if (row)
        m_treeView->revealRow(row);
}

void SoNodescopeViewer::selectNode(SoTreeViewItem* row, bool inNewTab)
{
    if (row && inNewTab)
        m_edition->overview().addPage();
    m_services.setSelectedNode(row ? row->node() : nullptr);
}

void SoNodescopeViewer::containerShown(SoFieldContainer* container)
{
    if (container != m_services.getSelectedNode())
        m_services.setSelectedNode(container);
}
