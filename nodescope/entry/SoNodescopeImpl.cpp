#include "SoNodescopeImpl.h"
#include "detail/HostingFacts.h"
#include "detail/Inspection.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <vexel/base/SoLibNodescope.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoDB.h>
#include <vexel/viewer/SoGuiRenderArea.h>
#include <vexel/viewer/SoSceneManager.h>
#include <vexel/viewer/SoSceneManagerImpl.h>

#include <QCoreApplication>

namespace {

bool running = false;
bool stopRequested = false;

/** Brings an inspection up to the point where the viewer can be given its scene; false while another one runs. */
bool start(const HostingFacts& facts)
{
    if (running)
        return false;
    if (stopRequested)
        Inspection::cleanup(); // of the one before; the stop that was asked for then ends the new one
    SoDB::init();
    Inspection::prepare(facts);
    running = true;
    Inspection::initialize(facts.isStandalone ? QCoreApplication::arguments() : QStringList(), facts.sceneManager);
    SoNodescopeMainFrame& frame = SoNodescopeViewer::getInstance()->mainFrame();
    QObject::connect(&frame, &SoNodescopeMainFrame::quitRequested, [] { SoNodescopeImpl::requestStop(false); });
    if (!facts.isStandalone) // the host's main loop is over, and it takes down what it made
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, &frame, [] { SoNodescopeImpl::requestStop(true); });
    if (facts.parent) // its window is ours too, so that everything that uses it must go first
        QObject::connect(facts.parent, &QObject::destroyed, &frame, [] { SoNodescopeImpl::requestStop(true); });
    return true;
}

void startOnSceneManager(SoSceneManager* sceneManager, SoGuiRenderArea* renderArea, QWidget* parent)
{
    HostingFacts facts;
    facts.parent = parent;
    facts.sceneManager = sceneManager;
    facts.renderArea = renderArea;
    if (!start(facts))
        return;
    SoSceneManagerImpl& manager = *sceneManager->getSceneManagerImpl();
    manager.setOwnNodescope(1);
    manager.setEndCallback([] { SoNodescopeImpl::requestStop(true); });
    SoNodescopeViewer::getInstance()->setSceneGraph(sceneManager->getSceneGraph(), true);
    Inspection::showMainFrame();
}

} // namespace

SoNodescopeImpl::~SoNodescopeImpl() = default;

void SoNodescopeImpl::startStandalone(int& argc, char** argv)
{
    if (!running && !SoLibNodescope::isAvailable())
        SoLibNodescope::instance(); // nodes and viewers of the program find the inspector through it
    HostingFacts facts;
    facts.isStandalone = true;
    facts.argc = &argc;
    facts.argv = argv;
    if (start(facts) && !SoPreferences::getBool("VXL_DISABLE_MAINLOOP", false))
        Inspection::showMainFrame();
}

void SoNodescopeImpl::startNode(SoNode* root, QWidget* parent)
{
    HostingFacts facts;
    facts.parent = parent;
    if (!start(facts))
        return;
    SoNodescopeViewer::getInstance()->setSceneGraph(root, true);
    Inspection::showMainFrame();
}

void SoNodescopeImpl::startRenderArea(SoGuiRenderArea* renderArea)
{
    startOnSceneManager(renderArea->getSceneManager(), renderArea, nullptr);
}

void SoNodescopeImpl::startSceneManager(SoSceneManager* sceneManager, QWidget* parent)
{
    startOnSceneManager(sceneManager, sceneManager->getSceneManagerImpl()->getRenderArea(), parent);
}

void SoNodescopeImpl::setPickAction(const SbViewportRegion& region, SbVec2s cursor)
{
    if (running)
        SoNodescopeViewer::getInstance()->pick(region, cursor);
}

int SoNodescopeImpl::processEvents()
{
    if (running && Inspection::ownsApplication())
        QCoreApplication::processEvents();
    if (stopRequested)
        requestStop(true);
    return running;
}

bool SoNodescopeImpl::isRunning()
{
    return running;
}

void SoNodescopeImpl::requestStop(bool immediate)
{
    const bool isUp = running || stopRequested;
    running = false;
    stopRequested = isUp && !immediate;
    if (isUp && immediate)
        Inspection::cleanup();
}
