#include "MainFrameFixture.h"

#include <nodescope/mainframe/RecentFilesMenu.h>

#include <QSignalSpy>

namespace {

const QString Group = "/NodescopeViewer/NodescopeMainFrame";

} // namespace

TEST_F(MainFrameTest, WithoutSettingsTheWindowOpensMaximisedInTheCorner)
{
    SoNodescopeMainFrame& frame = makeFrame();
    frame.restoreSettings();
    EXPECT_FALSE(frame.isVisible());
    EXPECT_TRUE(frame.isMaximized());
    EXPECT_EQ(frame.pos(), QPoint(0, 0));
}

TEST_F(MainFrameTest, PlaceAndSizeAreStored)
{
    SoNodescopeMainFrame& frame = makeFrame();
    frame.move(31, 47);
    frame.resize(901, 603);
    frame.saveSettings();
    EXPECT_EQ(m_disk.value(Group + "/WindowX").toInt(), 31);
    EXPECT_EQ(m_disk.value(Group + "/WindowY").toInt(), 47);
    EXPECT_EQ(m_disk.value(Group + "/WindowWidth").toInt(), 901);
    EXPECT_EQ(m_disk.value(Group + "/WindowHeight").toInt(), 603);
    EXPECT_TRUE(m_disk.contains(Group + "/MainWindowLayout"));
    EXPECT_EQ(m_disk.value(Group + "/MainWindowLayout").toString(), "");

    SoNodescopeMainFrame& next = makeFrame();
    next.restoreSettings();
    EXPECT_EQ(next.pos(), QPoint(31, 47));
    EXPECT_TRUE(next.isMaximized());
}

TEST_F(MainFrameTest, ALayoutWrittenByAnotherGivesTheStoredSize)
{
    m_disk.setValue(Group + "/WindowWidth", 1001);
    m_disk.setValue(Group + "/WindowHeight", 707);
    m_disk.setValue(Group + "/MainWindowLayout", "some layout");
    SoNodescopeMainFrame& frame = makeFrame();
    frame.restoreSettings();
    EXPECT_FALSE(frame.isMaximized());
    EXPECT_EQ(frame.size(), QSize(1001, 707));
}

TEST_F(MainFrameTest, ClosingTheWindowSavesAndAsksToStop)
{
    SoNodescopeMainFrame& frame = showFrame();
    frame.resize(900, 610);
    frame.recentFiles()->addFile("/tmp/a.vx");
    QSignalSpy quit(&frame, &SoNodescopeMainFrame::quitRequested);
    EXPECT_TRUE(frame.close());
    EXPECT_EQ(quit.count(), 1);
    EXPECT_FALSE(frame.isVisible());
    EXPECT_EQ(m_disk.value(Group + "/WindowWidth").toInt(), 900);
    EXPECT_EQ(m_disk.value(Group + "/File1").toString(), "/tmp/a.vx");
}

TEST_F(MainFrameTest, RecentFilesAreNewestFirstAndAtMostNine)
{
    RecentFilesMenu& menu = *makeFrame().recentFiles();
    for (int i = 1; i <= 11; ++i)
        menu.addFile(QString("/tmp/%1.vx").arg(i));
    menu.addFile("/tmp/5.vx");
    EXPECT_EQ(menu.files().join(" "),
              "/tmp/5.vx /tmp/11.vx /tmp/10.vx /tmp/9.vx /tmp/8.vx /tmp/7.vx /tmp/6.vx /tmp/4.vx /tmp/3.vx");
    menu.save();
    EXPECT_EQ(m_disk.value(Group + "/File1").toString(), "/tmp/5.vx");
    EXPECT_EQ(m_disk.value(Group + "/File9").toString(), "/tmp/3.vx");
    EXPECT_FALSE(m_disk.contains(Group + "/File10"));
}

TEST_F(MainFrameTest, RecentFilesAreReadFromTheStorePassingOverGaps)
{
    m_disk.setValue(Group + "/File2", "/tmp/two.vx");
    m_disk.setValue(Group + "/File9", "/tmp/R&D.vx");
    m_disk.setValue(Group + "/File10", "/tmp/ten.vx");
    SoNodescopeMainFrame& frame = makeFrame();
    for (const QAction* action : frame.recentFiles()->fileActions())
        EXPECT_FALSE(action->isVisible());
    frame.restoreSettings();

    const auto& actions = frame.recentFiles()->fileActions();
    EXPECT_EQ(frame.recentFiles()->files(), (QStringList{"/tmp/two.vx", "/tmp/R&D.vx"}));
    EXPECT_EQ(actions[0]->text(), "&1 /tmp/two.vx");
    EXPECT_EQ(actions[1]->text(), "&2 /tmp/R&&D.vx");
    EXPECT_TRUE(actions[1]->isVisible());
    EXPECT_FALSE(actions[2]->isVisible());

    actions[1]->trigger();
    EXPECT_EQ(m_manager.takeCalls(), QStringList{"openFileRecent /tmp/R&D.vx"});

    frame.saveSettings();
    EXPECT_EQ(m_disk.value(Group + "/File1").toString(), "/tmp/two.vx");
    EXPECT_EQ(m_disk.value(Group + "/File9").toString(), "");
}

TEST_F(MainFrameTest, RecentFilesAreDisabledOnAHost)
{
    EXPECT_TRUE(makeFrame(Hosting::Standalone).recentFiles()->isEnabled());
    EXPECT_FALSE(makeFrame(Hosting::Attached).recentFiles()->isEnabled());
}
