#include "Inspection.h"
#include "ConfigurationSource.h"
#include "CriticalErrorDialog.h"
#include "HostingFacts.h"
#include "QtLibraryPaths.h"
#include "Translations.h"

#include <extension/NscPluginsManager.h>
#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <nodescope/mainframe/detail/MessageDock.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/shell/NscServicesImpl.h>
#include <nodescope/shell/NscShellImpl.h>
#include <nodescope/tree/NscNodeInfo.h>
#include <spanora/SpnSymTool.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoQt.h>
#include <vexel/viewer/SoSceneManager.h>
#include <vexel/viewer/SoSceneManagerImpl.h>

#include <QApplication>
#include <QLocale>

namespace {

/** In the order of their start. */
constexpr const char* Optional_modules[] = {"Tessora", "Densora", "FarlinkClient"};

bool ownsApplicationObject = false;

void makeApplication(const HostingFacts& facts)
{
    static int ownCount = 1;
    static char ownName[] = "qAppInstance";
    static char* ownArguments[] = {ownName, nullptr};
    setupQtLibraryPaths(SbString());
    if (facts.argv)
        new QApplication(*facts.argc, facts.argv);
    else
        new QApplication(ownCount, ownArguments);
}

/** The host's handler of critical errors, which comes back at the end. */
SoErrorCB* hostsErrorHandler = nullptr;
void* hostsErrorData = nullptr;

void installErrorHandler()
{
    hostsErrorHandler = SoErrorStack::getHandlerCallback();
    hostsErrorData = SoErrorStack::getHandlerData();
    SoErrorStack::setHandlerCallback(criticalErrorHandler);
}

void removeErrorHandler()
{
    if (SoErrorStack::getHandlerCallback() == criticalErrorHandler) // the host may have installed another one meanwhile
        SoErrorStack::setHandlerCallback(hostsErrorHandler, hostsErrorData);
}

/** What the tool shows before a scene is opened. */
SoNode* placeholderScene()
{
    auto* root = new SoSeparator;
    root->addChild(new SoGradientBackground);
    return root;
}

} // namespace

void Inspection::prepare(const HostingFacts& facts)
{
    ConfigurationSource::registerMinimalConfiguration();
    NscServicesImpl& services = *NscServicesImpl::getInstance();
    services.setStandalone(facts.isStandalone);
    services.setSceneManager(facts.sceneManager);
    services.setRenderArea(facts.renderArea);
    ownsApplicationObject = !QCoreApplication::instance();
    if (ownsApplicationObject)
        makeApplication(facts);
    Translations::install();
    if (services.isStandalone())
        Translations::installForQt();
    NscShellImpl::getInstance(facts.parent);
}

void Inspection::initialize(const QStringList& arguments, const SoSceneManager* sceneManager)
{
    // A critical error is shown with the calls that led to it.
    if (!SoPreferences::hasValue("VXL_DEBUG_STACKERROR"))
        SoPreferences::setValue("VXL_DEBUG_STACKERROR", "1");
    SoPreferences::setValue("VXL_STACKWALKER_HTML_OUTPUT", "1");
    NscServicesImpl& services = *NscServicesImpl::getInstance();
    SoNodescopeMainFrame& frame = *NscShellImpl::getInstance()->getMainFrame();
    if (services.isStandalone())
        SoQt::init(&frame);
    QLocale::setDefault(QLocale(QLocale::C, QLocale::AnyCountry)); // numbers have a decimal point everywhere
    installErrorHandler();
    for (const char* module : Optional_modules)
        SpnSymTool::initModule(module);

    SoCommandManager& manager = *services.getCommandManager();
    using Hosting = SoNodescopeMainFrame::Hosting;
    frame.setAttribute(Qt::WA_QuitOnClose, services.isStandalone()); // a host's end does not hang on our window
    frame.setUp(&manager, services.isStandalone() ? Hosting::Standalone : Hosting::Attached);
    SoNodescopeViewer& viewer = *SoNodescopeViewer::getInstance();
    auto* const messages = new MessageDock(frame);
    frame.restoreSettings();
    manager.initialize(&frame);
    if (!sceneManager)
        viewer.setSceneGraph(placeholderScene(), true);
    if (arguments.size() > 1)
        frame.openFile(arguments.last());
    const ConfigurationSource::Source source = ConfigurationSource::resolveConfiguration();
    NscPluginsManager::getInstance()->read(source.pathOrText, source.isFile);
    frame.restoreLayout(); // with the docks and tool bars of extensions
    messages->begin(int(NscPluginsManager::getInstance()->getProblems().size()));
}

void Inspection::showMainFrame()
{
    NscShellImpl::getInstance()->getMainFrame()->show();
}

void Inspection::cleanup()
{
    const NscServicesImpl& services = *NscServicesImpl::getInstance();
    const bool isStandalone = services.isStandalone();
    if (SoSceneManager* sceneManager = services.getSceneManager())
        sceneManager->getSceneManagerImpl()->setOwnNodescope(0);
    NscPluginsManager::releaseInstance(); // extensions go while shell and services still exist
    NscServicesImpl::deleteInstance();
    SoNodescopeViewer::deleteInstance();
    NscShellImpl::deleteInstance();
    if (isStandalone)
        SoQt::finish();
    SoPreferenceStore::deleteInstance();
    NscNodeInfo::clean();
    Translations::remove();
    removeErrorHandler();
    for (auto module = std::rbegin(Optional_modules); module != std::rend(Optional_modules); ++module)
        SpnSymTool::finishModule(*module);
    if (ownsApplicationObject)
        delete QCoreApplication::instance();
}

bool Inspection::ownsApplication()
{
    return ownsApplicationObject;
}
