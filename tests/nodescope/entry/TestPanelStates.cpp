#include "InspectionFixture.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/preferences/SoNodescopeStateManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QTimer>

TEST_F(InspectionTest, TheTreeHasTheSharedActionsFromTheStartAndEachTime)
{
    for (int times = 0; times < 3; ++times) {
        testing::internal::CaptureStdout();
        _startNode(m_root, nullptr);
        EXPECT_EQ(SoNodescopeStateManager::currentState(), "TreeViewState");
        SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
        QApplication::setActiveWindow(&frame());
        tree.setFocus();
        tree.clearFocus();
        tree.setFocus();
        EXPECT_EQ(SoNodescopeStateManager::currentState(), "TreeViewState");
        _stop();
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    }
}

TEST_F(InspectionTest, TheTreeTakesTheSharedActionsBackWithTheKeyboard)
{
    _startNode(m_root, nullptr);
    testing::internal::CaptureStdout();
    SoNodescopeStateManager::setCurrentState("no panel");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "[E] SoNodescopeStateManager::setCurrentState: Error wrapper not found\n");
    QApplication::setActiveWindow(&frame());
    SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
    tree.clearFocus();
    tree.setFocus();
    EXPECT_EQ(SoNodescopeStateManager::currentState(), "TreeViewState");
}

TEST_F(InspectionTest, OpenDialogsGoWithTheInspection)
{
    for (int times = 0; times < 2; ++times) {
        _startNode(m_root, nullptr);
        SoCommandManager& manager = *NscServicesImpl::getInstance()->getCommandManager();
        manager.showFindDialog();
        manager.treeAddNode();
        EXPECT_EQ(frame().findChildren<QDialog*>().size(), 2);
        _stop();
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible()) << window->windowTitle().toStdString();
    }
}

TEST_F(InspectionTest, AnInspectionCanBeStoppedWhileTheMenuOfTheTreeIsOpen)
{
    _startNode(m_root, nullptr);
    SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    bool wasOpen = false;
    QTimer::singleShot(0, [&wasOpen] {
        wasOpen = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        _stop();
    });
    const QPoint place = tree.visualItemRect(tree.topLevelItem(0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree.viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree.viewport(), &event);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(_isRunning(), 0);
}
