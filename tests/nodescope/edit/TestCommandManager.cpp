#include <extension/NscCommand.h>
#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/RecentFilesMenu.h>
#include <nodescope/mainframe/SceneFileHandler.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/preferences/SoPreferenceStore.h>

#include <QAction>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class EmptyCommand : public NscCommand {
public:
    bool execute() override { return true; }
    void undo() override {}
    void redo() override {}
};

/** Writes down what is asked, and whether the scene counted as changed at that moment. */
class FileRecorder : public SceneFileHandler {
public:
    explicit FileRecorder(const SoCommandManager& manager) : m_manager(manager) {}

    void setScene(SoNode*, bool clearsUndo) override { record(clearsUndo ? "set scene, clear" : "set scene"); }
    bool newScene() override
    {
        record("new");
        return m_mayReplaceScene;
    }
    void openFile(const QString& file) override { record("open " + file); }
    void openRecentFile(const QString& file) override { record("recent " + file); }
    void reload() override { record("reload"); }
    void save() override { record("save"); }
    void saveAs(SoNode* subgraph) override { record(subgraph ? "save part" : "save all"); }

    bool m_mayReplaceScene = true;
    QStringList m_calls;

private:
    void record(const QString& call) { m_calls << call + (m_manager.isModified() ? " (modified)" : ""); }

    const SoCommandManager& m_manager;
};

class CommandManagerTest : public testing::Test {
protected:
    CommandManagerTest()
    {
        m_frame.setUp(&m_manager, SoNodescopeMainFrame::Hosting::Standalone);
        m_manager.initialize(&m_frame);
        m_frame.setSceneFiles(&m_files);
    }
    ~CommandManagerTest() override { SoPreferenceStore::deleteInstance(); }

    QAction& action(ActionId id) { return *m_frame.action(id); }

    SoCommandManager m_manager;
    FileRecorder m_files{m_manager};
    SoNodescopeMainFrame m_frame;
};

} // namespace

TEST_F(CommandManagerTest, UndoAndRedoActionsFollowTheHistory)
{
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
    EXPECT_FALSE(action(ActionId::Redo).isEnabled());
    m_manager.addCommand(new EmptyCommand);
    EXPECT_TRUE(action(ActionId::Undo).isEnabled());
    action(ActionId::Undo).trigger();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
    EXPECT_TRUE(action(ActionId::Redo).isEnabled());
    action(ActionId::Redo).trigger();
    EXPECT_TRUE(action(ActionId::Undo).isEnabled());
    EXPECT_FALSE(action(ActionId::Redo).isEnabled());
    EXPECT_TRUE(m_manager.isModified());
    m_manager.clearUndoCommand();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
    EXPECT_FALSE(m_manager.isModified());
}

TEST_F(CommandManagerTest, SavingEndsUndoFirst)
{
    m_manager.addCommand(new EmptyCommand);
    action(ActionId::Save).trigger();
    m_manager.addCommand(new EmptyCommand);
    action(ActionId::SaveAs).trigger();
    EXPECT_EQ(m_files.m_calls.join(", ").toStdString(), "save, save all");
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(CommandManagerTest, NewAndCloseLeaveAnEmptySceneWithoutHistoryAndReload)
{
    for (ActionId id : {ActionId::New, ActionId::Close}) {
        m_manager.addCommand(new EmptyCommand);
        action(ActionId::Reload).setEnabled(true);
        action(id).trigger();
        EXPECT_FALSE(action(ActionId::Undo).isEnabled());
        EXPECT_FALSE(action(ActionId::Reload).isEnabled());
    }
    EXPECT_EQ(m_files.m_calls.join(", ").toStdString(), "new (modified), new (modified)");
}

TEST_F(CommandManagerTest, ACloseThatTheUserStopsChangesNothing)
{
    m_files.m_mayReplaceScene = false;
    m_manager.addCommand(new EmptyCommand);
    action(ActionId::Reload).setEnabled(true);
    action(ActionId::Close).trigger();
    EXPECT_TRUE(action(ActionId::Undo).isEnabled());
    EXPECT_TRUE(action(ActionId::Reload).isEnabled());
}

TEST_F(CommandManagerTest, ReloadAndRecentFilesAreForwarded)
{
    EXPECT_FALSE(action(ActionId::Reload).isEnabled());
    action(ActionId::Reload).setEnabled(true);
    action(ActionId::Reload).trigger();
    m_frame.recentFiles()->addFile("/tmp/a.vx");
    m_frame.recentFiles()->fileActions()[0]->trigger();
    EXPECT_EQ(m_files.m_calls.join(", ").toStdString(), "reload, recent /tmp/a.vx");
}

TEST_F(CommandManagerTest, QuitClosesTheFrame)
{
    m_frame.show();
    QSignalSpy quit(&m_frame, &SoNodescopeMainFrame::quitRequested);
    action(ActionId::Quit).trigger();
    EXPECT_EQ(quit.count(), 1);
    EXPECT_FALSE(m_frame.isVisible());
}

TEST_F(CommandManagerTest, OpenAsksForAFile)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QString title;
    QStringList filters;
    const auto answer = [&](auto act) {
        QTimer::singleShot(0, &m_frame, [&, act] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            title = dialog->windowTitle();
            filters = dialog->nameFilters();
            act(*dialog);
        });
        action(ActionId::Open).trigger();
    };
    answer([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(m_files.m_calls, QStringList());
    EXPECT_EQ(title.toStdString(), "open file");
    EXPECT_EQ(filters.join(";;").toStdString(), "Vexel files (*.vx *.vxz *.vx.gz);;All files (*.*)");
}
