#include "MainFrameFixture.h"

TEST_F(MainFrameTest, KeysReachTheirActions)
{
    SoNodescopeMainFrame& frame = showFrame();
    QTest::keyClick(&frame, Qt::Key_F3);
    QTest::keyClick(&frame, Qt::Key_F3, Qt::ShiftModifier);
    QTest::keyClick(&frame, Qt::Key_F2, Qt::ControlModifier);
    QTest::keyClick(&frame, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(&frame, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(m_manager.takeCalls(),
              (QStringList{"findNext", "findPrevious", "toggleBookmark", "saveFile", "closeApp"}));
}

TEST_F(MainFrameTest, AKeyOfADisabledActionDoesNothing)
{
    SoNodescopeMainFrame& frame = showFrame();
    QTest::keyClick(&frame, Qt::Key_F4);
    QTest::keyClick(&frame, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_manager.takeCalls(), QStringList());
    frame.action(ActionId::ShowAllReferences)->setEnabled(true);
    QTest::keyClick(&frame, Qt::Key_F4);
    EXPECT_EQ(m_manager.takeCalls(), QStringList{"showAllReferences"});
}

TEST_F(MainFrameTest, SharedShortcutsTriggerNeither)
{
    SoNodescopeMainFrame& frame = showFrame();
    QTest::keyClick(&frame, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(m_manager.takeCalls(), QStringList()) << "New and Find have the same key";

    QTest::keyClick(&frame, Qt::Key_F2);
    EXPECT_EQ(m_manager.takeCalls(), QStringList{"nextBookmark"}) << "the reference action is disabled";
    frame.action(ActionId::NextReference)->setEnabled(true);
    QTest::keyClick(&frame, Qt::Key_F2);
    EXPECT_EQ(m_manager.takeCalls(), QStringList()) << "next bookmark and next reference have the same key";
}
