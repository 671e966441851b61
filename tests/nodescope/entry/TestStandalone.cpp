#include "InspectionFixture.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/viewer/SoGuiViewer.h>

#include <QAction>
#include <QDockWidget>

namespace {

class StandaloneTest : public InspectionTest {
protected:
    void start() { SoNodescopeImpl::startStandalone(m_count, m_arguments); }

    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
};

} // namespace

TEST_F(StandaloneTest, ShowsAPlaceholderScene)
{
    start();
    EXPECT_TRUE(NscServices::getInstance()->isStandalone());
    EXPECT_TRUE(frame().isVisible());
    const SoNode* scene = SoNodescopeViewer::getInstance()->scene();
    ASSERT_TRUE(scene && scene->getTypeId() == SoSeparator::getClassTypeId());
    const auto* root = static_cast<const SoSeparator*>(scene);
    ASSERT_EQ(root->getNumChildren(), 1);
    EXPECT_TRUE(root->getChild(0)->getTypeId() == SoGradientBackground::getClassTypeId());
}

TEST_F(StandaloneTest, TheTreeStandsInADockBesideThe3DView)
{
    start();
    const auto* dock = frame().findChild<QDockWidget*>("dockMainWin");
    ASSERT_TRUE(dock);
    EXPECT_EQ(dock->windowTitle(), "Tree View");
    EXPECT_EQ(dock->widget(), SoNodescopeViewer::getInstance()->treeView());
    EXPECT_EQ(frame().dockWidgetArea(const_cast<QDockWidget*>(dock)), Qt::LeftDockWidgetArea);
    EXPECT_EQ(frame().centralWidget()->windowTitle(), "Open Vexel SceneViewer");
    EXPECT_TRUE(frame().action(ActionId::Open)->isEnabled());
}

TEST_F(StandaloneTest, TheTreeHasTheKeyboardAtFirst)
{
    start();
    EXPECT_EQ(frame().focusWidget(), SoNodescopeViewer::getInstance()->treeView());
}

TEST_F(InspectionTest, OnAHostTheTreeIsInTheMiddle)
{
    _startNode(m_root, nullptr);
    EXPECT_EQ(frame().centralWidget(), SoNodescopeViewer::getInstance()->treeView());
    EXPECT_FALSE(frame().findChild<QDockWidget*>("dockMainWin"));
    EXPECT_FALSE(frame().action(ActionId::Open)->isEnabled());
    EXPECT_FALSE(frame().action(ActionId::Close)->isEnabled());
    EXPECT_TRUE(frame().action(ActionId::New)->isEnabled());
    EXPECT_TRUE(frame().action(ActionId::SaveAs)->isEnabled());
}

TEST_F(StandaloneTest, WithoutAMainLoopTheWindowStaysHidden)
{
    SoPreferences::setValue("VXL_DISABLE_MAINLOOP", "true");
    start();
    EXPECT_EQ(_isRunning(), 1);
    EXPECT_FALSE(frame().isVisible());
    EXPECT_TRUE(SoNodescopeViewer::getInstance()->scene());
    SoPreferences::removeValue("VXL_DISABLE_MAINLOOP");
}

TEST_F(StandaloneTest, ADroppedOrOpenedFileFillsTheTree)
{
    start();
    frame().openFile(write("a.vx", "#Vexel V2.1 ascii\nSeparator { Material { } Translation { } }\n"));
    const SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(tree.topLevelItem(0)->child(1)->text(0), "Translation");
    EXPECT_EQ(frame().windowTitle(), "Nodescope -- " + path("a.vx"));
    frame().action(ActionId::New)->trigger();
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 0);
}

TEST_F(StandaloneTest, APickInThe3DViewSelectsTheRow)
{
    start();
    frame().openFile(write("a.vx", "#Vexel V2.1 ascii\nSeparator { Material { } Separator { Cube { } } }\n"));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    auto* viewer = dynamic_cast<SoGuiViewer*>(NscServices::getInstance()->getRenderArea());
    ASSERT_TRUE(viewer);
    QCoreApplication::processEvents();
    viewer->setViewing(false);
    QWidget* const view = viewer->getGLWidget();
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->rect().center());
    const SoTreeViewItem* row = SoNodescopeViewer::getInstance()->treeView()->currentRow();
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text(0), "Cube");
}

TEST_F(StandaloneTest, TheCameraOfASceneStaysAsItIs)
{
    start();
    frame().openFile(
        write("a.vx", "#Vexel V2.1 ascii\nSeparator { PerspectiveCamera { position 1 2 30 } Cube { } }\n"));
    const auto* viewer = dynamic_cast<SoGuiViewer*>(NscServices::getInstance()->getRenderArea());
    ASSERT_TRUE(viewer);
    EXPECT_EQ(viewer->getCamera()->position.getValue(), SbVec3f(1, 2, 30));
}
