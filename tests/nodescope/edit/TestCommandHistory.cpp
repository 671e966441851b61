#include <extension/NscCommand.h>
#include <nodescope/edit/CommandHistory.h>

#include <gtest/gtest.h>
#include <memory>

namespace {

using Log = std::vector<std::string>;

/** Writes down what the history does with it. */
class LoggedCommand : public NscCommand {
public:
    LoggedCommand(Log& log, std::string name, bool result = true)
        : m_log(log), m_name(std::move(name)), m_result(result)
    {
    }
    ~LoggedCommand() override { m_log.push_back("delete " + m_name); }

    bool execute() override
    {
        m_log.push_back("execute " + m_name);
        if (m_whileExecuting)
            m_whileExecuting();
        return m_result;
    }
    void undo() override
    {
        m_log.push_back("undo " + m_name);
        if (m_whileExecuting)
            m_whileExecuting();
    }
    void redo() override
    {
        m_log.push_back("redo " + m_name);
        if (m_whileExecuting)
            m_whileExecuting();
    }

    std::function<void()> m_whileExecuting;

private:
    Log& m_log;
    std::string m_name;
    bool m_result;
};

class CommandHistoryTest : public testing::Test {
protected:
    CommandHistoryTest()
    {
        QObject::connect(m_history.get(), &CommandHistory::undoAvailable, [this](bool on) { m_canUndo = on; });
        QObject::connect(m_history.get(), &CommandHistory::redoAvailable, [this](bool on) { m_canRedo = on; });
    }

    LoggedCommand* add(const char* name)
    {
        auto* command = new LoggedCommand(m_log, name);
        m_history->add(command);
        return command;
    }

    /** What was logged since the last call. */
    Log takeLog() { return std::exchange(m_log, {}); }

    Log m_log;
    bool m_canUndo = false;
    bool m_canRedo = false;
    std::unique_ptr<CommandHistory> m_history = std::make_unique<CommandHistory>();
};

} // namespace

TEST_F(CommandHistoryTest, StartsEmpty)
{
    EXPECT_EQ(m_history->count(), 0);
    EXPECT_EQ(m_history->currentIndex(), -1);
    EXPECT_FALSE(m_history->isModified());
}

TEST_F(CommandHistoryTest, UndoAndRedoWithoutCommandsChangeNothing)
{
    m_canUndo = true; // whatever the actions show, it stays
    m_canRedo = true;
    m_history->undo();
    m_history->redo();
    EXPECT_TRUE(m_canUndo);
    EXPECT_TRUE(m_canRedo);
    EXPECT_EQ(m_history->currentIndex(), -1);
}

TEST_F(CommandHistoryTest, AddExecutesOnceAndEnablesUndo)
{
    m_canRedo = true;
    add("a");
    EXPECT_EQ(takeLog(), Log{"execute a"});
    EXPECT_TRUE(m_canUndo);
    EXPECT_FALSE(m_canRedo);
    EXPECT_TRUE(m_history->isModified());
    EXPECT_EQ(m_history->currentIndex(), 0);
}

TEST_F(CommandHistoryTest, ARefusedCommandStaysInTheHistory)
{
    EXPECT_FALSE(m_history->add(new LoggedCommand(m_log, "a", false)));
    EXPECT_TRUE(m_history->add(new LoggedCommand(m_log, "b", true)));
    EXPECT_EQ(m_history->count(), 2);
}

TEST_F(CommandHistoryTest, ACommandIsCurrentBeforeItIsExecuted)
{
    auto* command = new LoggedCommand(m_log, "a");
    int indexSeen = -2;
    bool undoSeen = false;
    command->m_whileExecuting = [&] {
        indexSeen = m_history->currentIndex();
        undoSeen = m_canUndo;
    };
    m_history->add(command);
    EXPECT_EQ(indexSeen, 0);
    EXPECT_TRUE(undoSeen);
}

TEST_F(CommandHistoryTest, UndoAndRedoWalkBackAndForth)
{
    add("a");
    add("b");
    takeLog();

    m_history->undo();
    EXPECT_TRUE(m_canUndo);
    EXPECT_TRUE(m_canRedo);
    m_history->undo();
    EXPECT_FALSE(m_canUndo);
    EXPECT_TRUE(m_canRedo);
    m_history->undo(); // nothing left
    EXPECT_EQ(takeLog(), (Log{"undo b", "undo a"}));

    m_history->redo();
    EXPECT_TRUE(m_canUndo);
    EXPECT_TRUE(m_canRedo);
    m_history->redo();
    EXPECT_TRUE(m_canUndo);
    EXPECT_FALSE(m_canRedo);
    m_history->redo(); // nothing left
    EXPECT_EQ(takeLog(), (Log{"redo a", "redo b"}));
    EXPECT_EQ(m_history->currentIndex(), 1);
}

TEST_F(CommandHistoryTest, AddingDestroysWhatWasUndoneNewestFirst)
{
    add("a");
    add("b");
    add("c");
    m_history->undo();
    m_history->undo();
    takeLog();

    add("d");
    EXPECT_EQ(takeLog(), (Log{"delete c", "delete b", "execute d"}));
    EXPECT_EQ(m_history->count(), 2);
    EXPECT_FALSE(m_canRedo);
    m_history->redo();
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(CommandHistoryTest, AddingAfterEverythingWasUndoneStartsOver)
{
    add("a");
    m_history->undo();
    takeLog();
    add("b");
    EXPECT_EQ(takeLog(), (Log{"delete a", "execute b"}));
    EXPECT_EQ(m_history->currentIndex(), 0);
}

TEST_F(CommandHistoryTest, ClearDestroysEverythingAndForgetsChanges)
{
    add("a");
    add("b");
    m_history->undo();
    takeLog();
    m_history->clear();
    EXPECT_EQ(takeLog(), (Log{"delete b", "delete a"}));
    EXPECT_EQ(m_history->count(), 0);
    EXPECT_EQ(m_history->currentIndex(), -1);
    EXPECT_FALSE(m_canUndo);
    EXPECT_FALSE(m_canRedo);
    EXPECT_FALSE(m_history->isModified());
    EXPECT_FALSE(m_history->isClearRequested());
}

TEST_F(CommandHistoryTest, AClearThatACommandCausesIsIgnored)
{
    auto* command = new LoggedCommand(m_log, "a");
    command->m_whileExecuting = [this] { m_history->clear(); };
    m_history->add(command);
    m_history->undo();
    m_history->redo();
    EXPECT_EQ(takeLog(), (Log{"execute a", "undo a", "redo a"}));
    EXPECT_EQ(m_history->count(), 1);
    EXPECT_EQ(m_history->currentIndex(), 0);
    EXPECT_TRUE(m_history->isModified());
    EXPECT_TRUE(m_history->isClearRequested());

    command->m_whileExecuting = nullptr;
    m_history->clear();
    EXPECT_EQ(m_history->count(), 0);
    EXPECT_FALSE(m_history->isClearRequested());
}

TEST_F(CommandHistoryTest, ACommandMayAddAnother)
{
    auto* outer = new LoggedCommand(m_log, "outer");
    outer->m_whileExecuting = [this] { add("inner"); };
    m_history->add(outer);
    outer->m_whileExecuting = nullptr;
    EXPECT_EQ(takeLog(), (Log{"execute outer", "execute inner"}));
    m_history->undo();
    m_history->undo();
    EXPECT_EQ(takeLog(), (Log{"undo inner", "undo outer"}));
}

TEST_F(CommandHistoryTest, ACommandThatStandsTwiceIsDeletedOnce)
{
    LoggedCommand* twice = add("twice");
    m_history->add(twice);
    m_history->undo();
    takeLog();
    add("b"); // drops the second entry only
    EXPECT_EQ(takeLog(), Log{"execute b"});
    m_history->undo();
    m_history->undo();
    EXPECT_EQ(takeLog(), (Log{"undo b", "undo twice"}));
    add("c");
    EXPECT_EQ(takeLog(), (Log{"delete b", "delete twice", "execute c"}));
}

TEST_F(CommandHistoryTest, AnUndoneCommandMayBeAddedAgain)
{
    LoggedCommand* a = add("a");
    m_history->undo();
    takeLog();
    m_history->add(a);
    EXPECT_EQ(takeLog(), Log{"execute a"});
    EXPECT_EQ(m_history->count(), 1);
}

TEST_F(CommandHistoryTest, DestructionDestroysTheCommandsNewestFirst)
{
    add("a");
    add("b");
    m_history->undo();
    takeLog();
    m_history.reset();
    EXPECT_EQ(takeLog(), (Log{"delete b", "delete a"}));
}
