#include "InspectionFixture.h"

#include <extension/NscPluginsManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/nodes/SoSelection.h>

#include <QAction>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>
#include <memory>

TEST_F(InspectionTest, RunsFromStartToStop)
{
    EXPECT_EQ(_isRunning(), 0);
    _startNode(m_root, nullptr);
    EXPECT_EQ(_isRunning(), 1);
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
    _stop();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
    EXPECT_EQ(NscServices::getInstance(), nullptr);
    _stop();
    EXPECT_EQ(_isRunning(), 0);
}

TEST_F(InspectionTest, ASecondStartChangesNothing)
{
    _startNode(m_root, nullptr);
    auto* other = new SoSeparator;
    other->ref();
    _startNode(other, nullptr);
    int count = 0;
    _startStandalone(count, nullptr);
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
    EXPECT_FALSE(NscServices::getInstance()->isStandalone());
    other->unref();
}

TEST_F(InspectionTest, CanBeStartedAgain)
{
    for (int i = 0; i < 3; ++i) {
        _startNode(m_root, nullptr);
        ASSERT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
        _stop();
    }
    EXPECT_EQ(m_root->getRefCount(), 1);
}

TEST_F(InspectionTest, AQuitOfTheUserIsCarriedOutLater)
{
    _startNode(m_root, nullptr);
    const QPointer<SoNodescopeMainFrame> window(&frame());
    frame().action(ActionId::Quit)->trigger();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_TRUE(window);
    EXPECT_EQ(_processEvents(), 0);
    EXPECT_FALSE(window);
}

TEST_F(InspectionTest, AStartBeforeAPendingStopIsStoppedToo)
{
    _startNode(m_root, nullptr);
    frame().close();
    _startNode(m_root, nullptr);
    EXPECT_EQ(_isRunning(), 1);
    EXPECT_EQ(_processEvents(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
}

TEST_F(InspectionTest, TheHostsEventsAreLeftToTheHost)
{
    _startNode(m_root, nullptr);
    bool isServed = false;
    QMetaObject::invokeMethod(
        qApp, [&] { isServed = true; }, Qt::QueuedConnection);
    EXPECT_EQ(_processEvents(), 1);
    EXPECT_FALSE(isServed);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isServed);
    _stop();
    EXPECT_TRUE(qApp);
}

TEST_F(InspectionTest, EndsWithTheHostsWindow)
{
    auto host = std::make_unique<QWidget>();
    _startNode(m_root, host.get());
    EXPECT_EQ(frame().parentWidget(), host.get());
    host.reset();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
}

TEST_F(InspectionTest, SetSceneGraphDoesNothing)
{
    _setSceneGraph(m_root);
    EXPECT_EQ(_isRunning(), 0);
    _startNode(m_root, nullptr);
    auto* other = new SoSeparator;
    other->ref();
    _setSceneGraph(other);
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
    other->unref();
}

TEST_F(InspectionTest, SetSceneGraphDoesNothingWhileAStopIsPending)
{
    _startNode(m_root, nullptr);
    frame().close();
    _setSceneGraph(m_root);
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
    EXPECT_EQ(_processEvents(), 0);
}

TEST_F(InspectionTest, TheHostEndsWithItsOwnLastWindow)
{
    QWidget host;
    host.show();
    _startNode(m_root, nullptr);
    QTimer::singleShot(0, &host, &QWidget::close);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(_isRunning(), 0);
}

TEST_F(InspectionTest, AHostWithoutAWindowDoesNotEndWithTheInspectors)
{
    _startNode(m_root, nullptr);
    QTimer::singleShot(0, qApp, [] {
        frame().close();
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(7); });
    });
    EXPECT_EQ(QCoreApplication::exec(), 7);
}

TEST_F(InspectionTest, EndsWithTheHostsMainLoop)
{
    _startNode(m_root, nullptr);
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
}

TEST_F(InspectionTest, TheHostsHandlerOfCriticalErrorsComesBack)
{
    int numErrors = 0;
    SoErrorStack::setHandlerCallback([](const SoError*, void* data) { ++*static_cast<int*>(data); }, &numErrors);
    _startNode(m_root, nullptr);
    _stop();
    SoErrorStack::post("critical");
    EXPECT_EQ(numErrors, 1);
    SoErrorStack::setHandlerCallback(nullptr);
}

TEST_F(InspectionTest, ReleasesTheSceneAtTheEnd)
{
    const int before = m_root->getRefCount();
    _startNode(m_root, nullptr);
    _stop();
    EXPECT_EQ(m_root->getRefCount(), before);
}

TEST_F(InspectionTest, NumbersHaveADecimalPoint)
{
    QLocale::setDefault(QLocale(QLocale::German));
    _startNode(m_root, nullptr);
    EXPECT_EQ(QLocale().decimalPoint(), '.');
}

TEST_F(InspectionTest, AnnouncesSceneAndSelection)
{
    _startNode(m_root, nullptr);
    NscServices& services = *NscServices::getInstance();
    QSignalSpy nodes(&services, &NscServices::selectedNodeChanged);
    QSignalSpy scenes(&services, &NscServices::sceneGraphChanged);
    SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
    tree.setCurrentItem(tree.topLevelItem(0)->child(0));
    EXPECT_EQ(nodes.count(), 1);
    EXPECT_EQ(services.getSelectedNode(), m_root->getChild(0));

    services.setSelectedNode(m_root);
    services.setSelectedNode(m_root);
    EXPECT_EQ(nodes.count(), 3);

    auto* other = new SoSeparator;
    services.setSceneGraph(other);
    EXPECT_EQ(scenes.count(), 1);
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), other);
    EXPECT_EQ(services.getSelection()->getNumChildren(), 1);
    EXPECT_EQ(services.getSelectedNode(), other);
    services.setSceneGraph(nullptr);
    EXPECT_EQ(scenes.count(), 2);
    EXPECT_EQ(services.getSelectedNode(), nullptr);
    EXPECT_EQ(tree.topLevelItemCount(), 0);
}
