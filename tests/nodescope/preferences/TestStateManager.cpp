#include <nodescope/preferences/SoNodescopeState.h>
#include <nodescope/preferences/SoNodescopeStateManager.h>

#include <QStringList>
#include <gtest/gtest.h>

#include <memory>

namespace {

QStringList calls;

/** Writes down what is asked of it. */
class RecordingState : public SoNodescopeState {
public:
    explicit RecordingState(const QString& name) : m_name(name) {}

    void activate() override { calls << m_name + " on"; }
    void deactivate() override { calls << m_name + " off"; }
    void contextMenu(QContextMenuEvent*) override {}

private:
    QString m_name;
};

class StateManager : public testing::Test {
protected:
    StateManager()
    {
        calls.clear();
        SoNodescopeStateManager::init();
        SoNodescopeStateManager::registerState("TreeViewState", &m_tree);
        SoNodescopeStateManager::registerState("FieldWatchState", &m_watch);
    }
    ~StateManager() override { SoNodescopeStateManager::init(); }

    /** What is printed while the state is made current. */
    static std::string makeCurrent(const char* name)
    {
        testing::internal::CaptureStdout();
        SoNodescopeStateManager::setCurrentState(name);
        return testing::internal::GetCapturedStdout();
    }
    static std::string takeCalls() { return std::exchange(calls, {}).join(", ").toStdString(); }
    static std::string current() { return SoNodescopeStateManager::currentState().toStdString(); }

    RecordingState m_tree{"tree"};
    RecordingState m_watch{"watch"};
};

} // namespace

TEST_F(StateManager, StartsWithNoneAndActivatesOnce)
{
    EXPECT_EQ(current(), "");
    EXPECT_EQ(makeCurrent("TreeViewState"), "");
    EXPECT_EQ(makeCurrent("TreeViewState"), "");
    EXPECT_EQ(takeCalls(), "tree on");
    EXPECT_EQ(current(), "TreeViewState");
}

TEST_F(StateManager, DeactivatesTheOneBefore)
{
    makeCurrent("TreeViewState");
    makeCurrent("FieldWatchState");
    makeCurrent("TreeViewState");
    EXPECT_EQ(takeCalls(), "tree on, tree off, watch on, watch off, tree on");
}

TEST_F(StateManager, AnUnknownNameLeavesNoneCurrent)
{
    makeCurrent("TreeViewState");
    EXPECT_EQ(makeCurrent("Nowhere"), "[E] SoNodescopeStateManager::setCurrentState: Error wrapper not found\n");
    EXPECT_EQ(takeCalls(), "tree on, tree off");
    EXPECT_EQ(current(), "");
    EXPECT_EQ(makeCurrent("TreeViewState"), "");
    EXPECT_EQ(takeCalls(), "tree on");
}

TEST_F(StateManager, AStateThatThereIsNotLeavesNoneCurrent)
{
    SoNodescopeStateManager::registerState("Empty", nullptr);
    makeCurrent("TreeViewState");
    EXPECT_EQ(makeCurrent("Empty"), "[E] SoNodescopeStateManager::setCurrentState: Error state not found\n");
    EXPECT_EQ(takeCalls(), "tree on, tree off");
    EXPECT_EQ(current(), "");
}

TEST_F(StateManager, ACurrentStateThatWasDeletedIsLeftWithAMessage)
{
    auto gone = std::make_unique<RecordingState>("gone");
    SoNodescopeStateManager::registerState("Gone", gone.get());
    makeCurrent("Gone");
    gone.reset();
    EXPECT_EQ(makeCurrent("TreeViewState"), "[E] SoNodescopeStateManager::setCurrentState: Error state is NULL\n");
    EXPECT_EQ(takeCalls(), "gone on, tree on");
    EXPECT_EQ(current(), "TreeViewState");
    EXPECT_EQ(makeCurrent("Gone"), "[E] SoNodescopeStateManager::setCurrentState: Error state not found\n");
}

TEST_F(StateManager, TheNewestOfANameIsFound)
{
    RecordingState newer("newer");
    SoNodescopeStateManager::registerState("TreeViewState", &newer);
    makeCurrent("TreeViewState");
    EXPECT_EQ(takeCalls(), "newer on");
}

TEST_F(StateManager, InitForgetsAll)
{
    makeCurrent("TreeViewState");
    SoNodescopeStateManager::init();
    EXPECT_EQ(current(), "");
    EXPECT_EQ(makeCurrent("TreeViewState"), "[E] SoNodescopeStateManager::setCurrentState: Error wrapper not found\n");
    EXPECT_EQ(takeCalls(), "tree on") << "the state is not touched any more";
}

TEST_F(StateManager, TheEmptyNameIsNoState)
{
    EXPECT_EQ(makeCurrent(""), "") << "none is current already";
    makeCurrent("TreeViewState");
    EXPECT_EQ(makeCurrent(""), "[E] SoNodescopeStateManager::setCurrentState: Error wrapper not found\n");
    EXPECT_EQ(takeCalls(), "tree on, tree off");
}
