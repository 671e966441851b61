#include "InspectionFixture.h"

#include <nodescope/preferences/SoNodescopeStateManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <QAction>

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
