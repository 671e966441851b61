#include "TreeViewStateFixture.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/preferences/SoNodescopeStateManager.h>

#include <QTest>

TEST_F(TreeStateTest, WhileItIsNotActiveNothingIsEnabledAndDeleteDoesNothing)
{
    makeCurrent(row(0));
    EXPECT_EQ(enabled(), "");
    m_state->activate();
    EXPECT_NE(enabled(), "");
    m_state->deactivate();
    const std::string before = enabled();
    makeCurrent(row(3));
    EXPECT_EQ(enabled(), before) << "the tree is followed no more";
    action(ActionId::Delete).trigger();
    EXPECT_EQ(m_commands.takeCalls(), QStringList());
}

TEST_F(TreeStateTest, DeleteReachesTheCommandManagerOnce)
{
    makeCurrent(row(2));
    m_state->activate();
    action(ActionId::Delete).trigger();
    EXPECT_EQ(m_commands.takeCalls(), QStringList("treeDeleteNode"));
    m_state->deactivate();
    m_state->activate();
    action(ActionId::Delete).trigger();
    EXPECT_EQ(m_commands.takeCalls(), QStringList("treeDeleteNode"));
}

TEST_F(TreeStateTest, ActionsFollowTheCurrentRow)
{
    m_state->activate();
    EXPECT_EQ(enabled(), "&Delete") << "the root";
    makeCurrent(row(0));
    EXPECT_EQ(enabled(), "&Delete, &Set Ignored/Enable, &Hide All References, Ne&xt, Pre&vious");
    makeCurrent(row(2));
    EXPECT_EQ(enabled(), "&Delete, &Set Ignored/Enable") << "a node in one place";
    makeCurrent(row(5)->childRow(0));
    EXPECT_EQ(enabled(), "&Delete") << "a node in a field";
}

TEST_F(TreeStateTest, WhatAFileHoldsIsNotIgnored)
{
    m_state->activate();
    for (const int file : {3, 4}) {
        makeCurrent(row(2));
        makeCurrent(row(file));
        EXPECT_EQ(enabled(), "&Delete") << row(file)->text(0).toStdString();
    }
}

TEST_F(TreeStateTest, HiddenReferencesCanBeShown)
{
    m_state->activate();
    makeCurrent(row(0));
    m_view->removeAllReferences();
    EXPECT_EQ(enabled(), "&Delete, &Set Ignored/Enable, Show &All References");
    m_view->showAllReferences();
    EXPECT_EQ(enabled(), "&Delete, &Set Ignored/Enable, &Hide All References, Ne&xt, Pre&vious");
}

TEST_F(TreeStateTest, ANodeHeldTwiceByOneGroupHasReferences)
{
    m_root->addChild(m_root->getChild(2));
    m_view->reset(m_root);
    m_state->activate();
    makeCurrent(row(2));
    EXPECT_EQ(enabled(), "&Delete, &Set Ignored/Enable, &Hide All References, Ne&xt, Pre&vious");
}

TEST_F(TreeStateTest, WithoutACurrentRowAllIsDisabled)
{
    makeCurrent(row(0));
    m_state->activate();
    m_state->deactivate();
    makeCurrent(nullptr);
    m_state->activate();
    EXPECT_EQ(enabled(), "");
}

TEST_F(TreeStateTest, NoActionIsEnabledWhoseSlotIsMissing)
{
    QObject managerWithoutSlots;
    SoNodescopeMainFrame frame;
    frame.setUp(&managerWithoutSlots, SoNodescopeMainFrame::Hosting::Standalone);
    SoTreeViewState state(*m_view, frame, managerWithoutSlots);
    state.activate();
    makeCurrent(row(0));
    for (const ActionId id : {ActionId::Delete, ActionId::SetIgnoredEnable, ActionId::HideAllReferences})
        EXPECT_FALSE(frame.action(id)->isEnabled()) << frame.action(id)->text().toStdString();
}

namespace {

/** Stands for another panel that has Delete for itself. */
class OtherState : public SoNodescopeState {
public:
    explicit OtherState(QAction& deleteAction) : m_delete(deleteAction) {}

    void activate() override
    {
        m_delete.setEnabled(true);
        connect(&m_delete, &QAction::triggered, this, [this] { ++m_numDeleted; });
    }
    void deactivate() override { m_delete.disconnect(this); }
    void contextMenu(QContextMenuEvent*) override {}

    int m_numDeleted = 0;

private:
    QAction& m_delete;
};

} // namespace

TEST_F(TreeStateTest, DeleteBelongsToThePanelThatHadTheKeyboardLast)
{
    OtherState other(action(ActionId::Delete));
    SoNodescopeStateManager::registerState("TreeViewState", m_state);
    SoNodescopeStateManager::registerState("FieldWatchState", &other);
    SoNodescopeStateManager::setCurrentState("TreeViewState");
    action(ActionId::Delete).trigger();
    SoNodescopeStateManager::setCurrentState("FieldWatchState");
    action(ActionId::Delete).trigger();
    EXPECT_EQ(m_commands.takeCalls(), QStringList("treeDeleteNode"));
    EXPECT_EQ(other.m_numDeleted, 1);
    SoNodescopeStateManager::setCurrentState("TreeViewState");
    action(ActionId::Delete).trigger();
    EXPECT_EQ(m_commands.takeCalls(), QStringList("treeDeleteNode"));
    EXPECT_EQ(other.m_numDeleted, 1);
    SoNodescopeStateManager::init();
}
