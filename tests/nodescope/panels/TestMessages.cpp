#include <nodescope/panels/MessagePanel.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoReadError.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {

using Kind = MessageLog::Kind;

QString cell(const MessageLog& log, int row, int column)
{
    return log.index(row, column).data().toString();
}

/** Kind, source and text of all lines. */
std::string linesOf(const MessageLog& log)
{
    QString text;
    for (int row = 0; row < log.rowCount(); ++row)
        text += cell(log, row, 1) + "|" + cell(log, row, 2) + "|" + cell(log, row, 3) + "\n";
    return text.toStdString();
}

/** The texts that a handler of the host was called with. */
void keep(const SoError* error, void* data)
{
    *static_cast<QStringList*>(data) << error->getDebugString().toQString();
}

/** A host that handles errors itself. */
class MessagesTest : public testing::Test {
protected:
    MessagesTest()
    {
        SoError::setHandlerCallback(keep, &m_host);
        SoDebugError::setHandlerCallback(keep, &m_host);
        SoReadError::setHandlerCallback(keep, &m_host);
    }
    ~MessagesTest() override
    {
        SoError::setHandlerCallback(nullptr);
        SoDebugError::setHandlerCallback(nullptr);
        SoReadError::setHandlerCallback(nullptr);
    }

    static QPushButton& button(const QWidget& panel, const QString& text)
    {
        for (QPushButton* each : panel.findChildren<QPushButton*>()) {
            if (each->text() == text)
                return *each;
        }
        throw std::logic_error("no such button");
    }

    QStringList m_host;
};

} // namespace

TEST_F(MessagesTest, EveryLineOfATextIsALine)
{
    MessageLog log;
    const QAbstractItemModelTester tester(&log);
    log.add(Kind::Problem, "here", "first\nsecond\n");
    log.add(Kind::Note, "there", "third");
    EXPECT_EQ(log.rowCount(), 0);
    QTRY_COMPARE(log.rowCount(), 3);
    EXPECT_EQ(linesOf(log), "Problem|here|first\nProblem|here|second\nNote|there|third\n");
    EXPECT_TRUE(QTime::fromString(cell(log, 0, 0), "HH:mm:ss").isValid());
    EXPECT_EQ(log.headerData(3, Qt::Horizontal).toString(), "Text");
    log.clear();
    EXPECT_EQ(log.rowCount(), 0);
}

TEST_F(MessagesTest, TheOldestLinesGo)
{
    MessageLog log;
    const QAbstractItemModelTester tester(&log);
    for (int i = 0; i < 3; ++i)
        log.add(Kind::Note, "", "old " + QString::number(i));
    log.takeOver();
    for (int i = 0; i < MessageLog::Limit - 1; ++i)
        log.add(Kind::Note, "", QString::number(i));
    log.takeOver();
    EXPECT_EQ(log.rowCount(), MessageLog::Limit);
    EXPECT_EQ(cell(log, 0, 3), "old 2");
    for (int i = 0; i < 5 * MessageLog::Limit; ++i)
        log.add(Kind::Note, "", QString::number(i));
    log.takeOver();
    EXPECT_EQ(log.rowCount(), MessageLog::Limit);
    EXPECT_EQ(cell(log, 0, 3), QString::number(4 * MessageLog::Limit));
    EXPECT_EQ(cell(log, MessageLog::Limit - 1, 3), QString::number(5 * MessageLog::Limit - 1));
}

TEST_F(MessagesTest, ErrorsOfTheToolkitAreListedAndTheHostIsToldToo)
{
    MessagePanel panel;
    SoDebugError::post("SoThing::make", "no room: none");
    SoDebugError::postWarning("SoThing::keep", "little room");
    SoDebugError::postInfo("SoThing", "room");
    SoReadError::post("a.vx, line 3, column 7", "strange word");
    SoError::post("plain");
    panel.log().takeOver();
    EXPECT_EQ(linesOf(panel.log()), "Problem|SoThing::make|no room: none\nProblem|SoThing::keep|little room\n"
                                    "Note|SoThing|room\nProblem|a.vx, line 3, column 7|strange word\n"
                                    "Problem||plain\n");
    EXPECT_EQ(m_host.size(), 5);
    EXPECT_EQ(m_host[0], "Error in SoThing::make: no room: none");
}

TEST_F(MessagesTest, TheHostsHandlersArePutBack)
{
    {
        const MessagePanel panel;
        EXPECT_NE(SoError::getHandlerCallback(), &keep);
    }
    EXPECT_EQ(SoError::getHandlerCallback(), &keep);
    EXPECT_EQ(SoDebugError::getHandlerCallback(), &keep);
    EXPECT_EQ(SoReadError::getHandlerCallback(), &keep);
    EXPECT_EQ(SoReadError::getHandlerData(), &m_host);
}

TEST_F(MessagesTest, AHandlerThatTheHostSetsMeanwhileStaysAndMayCallTheFormerOne)
{
    struct Chained {
        SoErrorCB* former;
        void* formerData;
        int calls;
    };
    auto panel = std::make_unique<MessagePanel>();
    Chained chained{SoError::getHandlerCallback(), SoError::getHandlerData(), 0};
    SoError::setHandlerCallback(
        [](const SoError* error, void* data) {
            auto& host = *static_cast<Chained*>(data);
            ++host.calls;
            host.former(error, host.formerData);
        },
        &chained);
    panel.reset();
    EXPECT_EQ(SoError::getHandlerData(), &chained);
    SoError::post("after the end");
    panel = std::make_unique<MessagePanel>();
    SoError::post("in the next session");
    panel->log().takeOver();
    EXPECT_EQ(linesOf(panel->log()), "Problem||in the next session\n");
    EXPECT_EQ(chained.calls, 2);
    EXPECT_EQ(m_host, (QStringList{"after the end", "in the next session"}));
}

TEST_F(MessagesTest, ManyMessagesOfManyThreadsAreTaken)
{
    SoError::setHandlerCallback([](const SoError*, void*) {});
    MessagePanel panel;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int k = 0; k < 20000; ++k)
                SoError::post("busy");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QTRY_COMPARE(panel.log().rowCount(), int(MessageLog::Limit));
}

TEST_F(MessagesTest, LinesAreCopiedAndCleared)
{
    MessagePanel panel;
    EXPECT_FALSE(button(panel, "Copy").isEnabled());
    EXPECT_FALSE(button(panel, "Clear").isEnabled());
    for (const char* text : {"a", "b", "c"})
        SoError::post("%s", text);
    panel.log().takeOver();
    const auto line = [&](int row) { return panel.log().lineText(row) + '\n'; };
    EXPECT_TRUE(line(0).endsWith("\tProblem\t\ta\n")) << line(0).toStdString();
    button(panel, "Copy").click();
    EXPECT_EQ(QApplication::clipboard()->text(), line(0) + line(1) + line(2));
    auto* const view = panel.findChild<QTreeView*>();
    for (const int row : {2, 0})
        view->selectionModel()->select(panel.log().index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    button(panel, "Copy").click();
    EXPECT_EQ(QApplication::clipboard()->text(), line(0) + line(2));
    button(panel, "Clear").click();
    EXPECT_EQ(panel.log().rowCount(), 0);
    EXPECT_FALSE(button(panel, "Copy").isEnabled());
}

TEST_F(MessagesTest, TheCopyKeyIsThePanelsWhileItHasTheKeyboard)
{
    QMainWindow window;
    int copiedByWindow = 0;
    auto* const action = new QAction(&window);
    action->setShortcut(QKeySequence("Ctrl+C"));
    QObject::connect(action, &QAction::triggered, [&] { ++copiedByWindow; });
    window.addAction(action);
    auto* const panel = new MessagePanel(&window);
    window.setCentralWidget(panel);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    SoError::post("copied");
    panel->log().takeOver();
    auto* const view = panel->findChild<QTreeView*>();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiedByWindow, 0);
    EXPECT_EQ(QApplication::clipboard()->text(), panel->log().lineText(0) + '\n');
}

TEST_F(MessagesTest, TheViewFollowsTheEndUnlessTheUserLooksElsewhere)
{
    MessagePanel panel;
    panel.resize(500, 120);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    QScrollBar& bar = *panel.findChild<QTreeView*>()->verticalScrollBar();
    const auto addLines = [&] {
        panel.log().add(Kind::Note, "", QString("line\n").repeated(100));
        panel.log().takeOver();
        QCoreApplication::processEvents();
    };
    addLines();
    addLines();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), bar.maximum());
    bar.setValue(5);
    addLines();
    EXPECT_EQ(bar.value(), 5);
}
