#include "PluginFixture.h"

#include <nodescope/panels/MessagePanel.h>
#include <vexel/base/SoDebugError.h>

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QStatusBar>

namespace {

/** An inspection of a host that keeps what is reported to itself. */
class MessageDockTest : public PluginTest {
protected:
    MessageDockTest()
    {
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* data) {
                *static_cast<QStringList*>(data) << error->getDebugString().toQString();
            },
            &m_posted);
    }
    ~MessageDockTest() override
    {
        _stop();
        EXPECT_EQ(SoDebugError::getHandlerData(), &m_posted);
        SoDebugError::setHandlerCallback(nullptr);
    }

    static QDockWidget& dock() { return *frame().findChild<QDockWidget*>("dockMessages"); }
    static MessageLog& log() { return frame().findChild<MessagePanel*>()->log(); }
    static QAction& toggle() { return *dock().toggleViewAction(); }

    QStringList m_posted;
};

} // namespace

TEST_F(MessageDockTest, IsHiddenWhileThereIsNothing)
{
    start(QByteArray());
    EXPECT_TRUE(dock().isHidden());
    EXPECT_TRUE(frame().viewMenu()->actions().contains(&toggle()));
    EXPECT_EQ(toggle().text(), "Messages");
    toggle().trigger();
    EXPECT_TRUE(dock().isVisible());
    closeWindow();
    start(QByteArray());
    EXPECT_TRUE(dock().isHidden()); // there is still nothing
}

TEST_F(MessageDockTest, ShowsProblemsWithPlugInsAtTheStart)
{
    write("empty.xml", "<configuration><plugins><loadPlugin file=\"extension_test_Null\"/><loadPlugin/></plugins>"
                       "</configuration>");
    _startNode(m_root, nullptr);
    EXPECT_TRUE(dock().isVisible());
    QTRY_COMPARE(frame().statusBar()->currentMessage(), QString("2 problems with plug-ins: see Messages"));
    ASSERT_EQ(log().rowCount(), 2);
    EXPECT_EQ(log().index(0, MessageLog::SourceColumn).data().toString(), "NscPluginsManager::read");
    EXPECT_EQ(log().index(1, MessageLog::TextColumn).data().toString(),
              "the library '" PLUGIN_FOLDER "/libextension_test_Null.so' makes no plug-in");
    EXPECT_EQ(m_posted.size(), 1);
}

TEST_F(MessageDockTest, SaysThatThereIsOneProblem)
{
    write("empty.xml", "<other/>");
    _startNode(m_root, nullptr);
    QTRY_COMPARE(frame().statusBar()->currentMessage(), QString("One problem with plug-ins: see Messages"));
}

TEST_F(MessageDockTest, KeepsWhatIsWrongInAFileAfterItsWarning)
{
    start(QByteArray());
    ModalAnswers answers;
    answers.expectBox("NodescopeReadFile", [](QMessageBox&) {});
    frame().openFile(write("bad.vx", "#Vexel V2.1 ascii\nCube { width much }\n"));
    log().takeOver();
    ASSERT_GE(log().rowCount(), 1);
    EXPECT_EQ(log().index(0, MessageLog::SourceColumn).data().toString().toStdString(),
              (path("bad.vx") + ":2:14").toStdString());
    EXPECT_TRUE(dock().isVisible());
}

TEST_F(MessageDockTest, ComesUpOnceByItself)
{
    start(QByteArray());
    SoDebugError::post("SoThing", "first");
    QTRY_VERIFY(dock().isVisible());
    dock().close();
    SoDebugError::post("SoThing", "second");
    QTRY_COMPARE(log().rowCount(), 2);
    EXPECT_FALSE(dock().isVisible());
    EXPECT_EQ(m_posted.size(), 2);
}
