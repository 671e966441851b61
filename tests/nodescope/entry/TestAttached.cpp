#include "InspectionFixture.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/viewer/SoQtExaminerViewer.h>
#include <vexel/viewer/SoSceneManager.h>
#include <vexel/viewer/SoSceneManagerImpl.h>

#include <memory>

namespace {

/** A host that shows a scene in a viewer of its own. */
class AttachedTest : public InspectionTest {
protected:
    AttachedTest()
    {
        m_root->addChild(m_cube);
        m_viewer.getSceneManager()->setViewportRegion(SbViewportRegion(400, 300));
        m_viewer.setSceneGraph(m_root);
        m_viewer.viewAll();
    }
    ~AttachedTest() override { _stop(); } // while the host's viewer is still there

    SoSceneManager* sceneManager() const { return m_viewer.getSceneManager(); }
    bool isInspected() const { return sceneManager()->getSceneManagerImpl()->isInspected(); }

    /** The node whose row is current after a pick in the middle of the picture. */
    SoNode* pickedInTheMiddle() const
    {
        _setPickAction(sceneManager()->getViewportRegion(), SbVec2s(200, 150));
        const SoTreeViewItem* row = SoNodescopeViewer::getInstance()->treeView()->currentRow();
        return row ? row->node() : nullptr;
    }

    SoCube* m_cube = new SoCube;
    QWidget m_window;
    SoQtExaminerViewer m_viewer{&m_window};
};

} // namespace

TEST_F(AttachedTest, ARenderAreaIsInspectedWithItsSceneManager)
{
    EXPECT_FALSE(isInspected());
    _startRenderArea(&m_viewer);
    const NscServices& services = *NscServices::getInstance();
    EXPECT_FALSE(services.isStandalone());
    EXPECT_EQ(services.getRenderArea(), &m_viewer);
    EXPECT_EQ(services.getSceneManager(), sceneManager());
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), sceneManager()->getSceneGraph());
    EXPECT_EQ(frame().centralWidget(), SoNodescopeViewer::getInstance()->treeView());
    EXPECT_TRUE(isInspected());
    _stop();
    EXPECT_FALSE(isInspected());
}

TEST_F(AttachedTest, TheRenderAreaOfASceneManagerIsFound)
{
    _startSceneManager(sceneManager(), &m_window);
    EXPECT_EQ(NscServices::getInstance()->getRenderArea(), &m_viewer);
    EXPECT_EQ(frame().parentWidget(), &m_window);
}

TEST_F(AttachedTest, ASceneManagerMayStandAlone)
{
    SoSceneManager manager;
    manager.setSceneGraph(m_root);
    _startSceneManager(&manager, nullptr);
    EXPECT_EQ(NscServices::getInstance()->getRenderArea(), nullptr);
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
    _stop(); // before the scene manager goes
}

TEST_F(AttachedTest, EndsWithTheSceneManager)
{
    auto manager = std::make_unique<SoSceneManager>();
    manager->setSceneGraph(m_root);
    _startSceneManager(manager.get(), nullptr);
    manager.reset();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscServices::getInstance(), nullptr);
}

TEST_F(AttachedTest, EndsWithTheRenderArea)
{
    auto viewer = std::make_unique<SoQtExaminerViewer>(&m_window);
    viewer->setSceneGraph(m_root);
    _startRenderArea(viewer.get());
    viewer.reset();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(m_root->getRefCount(), 3); // the test, and root and headlight of the other viewer
}

TEST_F(AttachedTest, ASecondStartLeavesTheOtherSceneManagerAlone)
{
    _startNode(m_root, nullptr);
    _startRenderArea(&m_viewer);
    EXPECT_FALSE(isInspected());
    EXPECT_EQ(NscServices::getInstance()->getSceneManager(), nullptr);
}

TEST_F(AttachedTest, ThePickOfAStoppedInspectionDoesNothing)
{
    _setPickAction(sceneManager()->getViewportRegion(), SbVec2s(5, 5));
    EXPECT_EQ(NscServices::getInstance(), nullptr);
}

TEST_F(AttachedTest, APickInTheHostSelectsTheRow)
{
    m_viewer.setViewing(false);
    _startRenderArea(&m_viewer);
    EXPECT_EQ(pickedInTheMiddle(), m_cube);
}

TEST_F(AttachedTest, WhileTheHostMovesItsCameraNothingIsPicked)
{
    m_viewer.setViewing(true);
    _startRenderArea(&m_viewer);
    SoNode* const before = SoNodescopeViewer::getInstance()->scene();
    EXPECT_EQ(pickedInTheMiddle(), before);
}

TEST_F(AttachedTest, WithoutAViewerNothingIsPicked)
{
    _startNode(m_root, nullptr);
    EXPECT_EQ(pickedInTheMiddle(), m_root);
}
