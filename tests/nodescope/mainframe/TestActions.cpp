#include "MainFrameFixture.h"

namespace {

/** What the user sees of an action, and whom it reaches. */
struct Expected {
    const char* text;
    bool hasIcon;
    const char* shortcut;
    const char* call; ///< null: none
};

const Expected Actions[] = {
    {"&New", true, "Ctrl+N", "newFile"},
    {"&Open...", true, "Ctrl+O", "openFile"},
    {"&Reload", true, "Ctrl+R", "reloadFile"},
    {"&Close", true, "", "closeFile"},
    {"&Save", true, "Ctrl+S", "saveFile"},
    {"Save &As...", true, "", "saveAsFile"},
    {"&Print...", true, "Ctrl+P", "printQt"},
    {"&Export", true, "Ctrl+E", "printFile"},
    {"&Quit", true, "Ctrl+Q", "closeApp"},
    {"&Undo", true, "Ctrl+Z", "undo"},
    {"&Redo", true, "Ctrl+Y", "redo"},
    {"Cu&t", true, "Ctrl+X", "cut"},
    {"&Copy", true, "Ctrl+C", "copy"},
    {"&Paste", true, "Ctrl+V", "paste"},
    {"&Delete", true, "", nullptr},
    {"&Find...", true, "Ctrl+N", "showFindDialog"},
    {"Find &Next", true, "F3", "findNext"},
    {"Find Pre&vious", true, "Shift+F3", "findPrevious"},
    {"Toggle Bookmark", true, "Ctrl+F2", "toggleBookmark"},
    {"Next Bookmark", true, "F2", "nextBookmark"},
    {"Previous Bookmark", true, "Shift+F2", "previousBookmark"},
    {"Clear All Bookmarks", true, "Alt+F2", "clearBookmark"},
    {"Toggle Filters", true, "", "setFilter 16383"},
    {"Appearance", true, "", "setFilter 16382"},
    {"Callback", true, "", "setFilter 16381"},
    {"Camera", true, "", "setFilter 16379"},
    {"Group", true, "", "setFilter 16375"},
    {"Light", true, "", "setFilter 16367"},
    {"Manipulator", true, "", "setFilter 16351"},
    {"Nodekit", true, "", "setFilter 16319"},
    {"Property", true, "", "setFilter 16255"},
    {"Selection", true, "", "setFilter 16127"},
    {"Separator", true, "", "setFilter 15871"},
    {"Shape", true, "", "setFilter 15359"},
    {"Switch", true, "", "setFilter 14335"},
    {"Topology", true, "", "setFilter 12287"},
    {"Transform", true, "", "setFilter 8191"},
    {"Custom...", true, "", "setFilter 16383"},
    {"&Explore", false, "", nullptr},
    {"Explore &all", false, "", nullptr},
    {"&Filter...", false, "", nullptr},
    {"&Insert...", false, "", nullptr},
    {"Insert &clipboard", false, "", "pasteNode"},
    {"&Set Ignored/Enable", false, "", "ignoreEnable"},
    {"Show &All References", false, "F4", "showAllReferences"},
    {"&Hide All References", false, "Ctrl+F4", "removeAllReferences"},
    {"Ne&xt", false, "F2", "nextReference"},
    {"Pre&vious", false, "Shift+F2", "previousReference"},
    {"&Open Viewer", false, "", nullptr},
    {"&Preferences...", true, "", "editPreferences"},
    {"&Contents", true, "Shift+F1", "launchNodescopeHelpViewer"},
    {"&About Nodescope", true, "", "launchAboutNodescopeFrame"},
};

} // namespace

TEST_F(MainFrameTest, HasEveryActionWithTextIconAndShortcut)
{
    const SoNodescopeMainFrame& frame = makeFrame();
    ASSERT_EQ(std::size(Actions), std::size_t(ActionId::Count));
    ASSERT_EQ(actionTable().size(), std::size_t(ActionId::Count));
    for (std::size_t i = 0; i < std::size(Actions); ++i) {
        const Expected& expected = Actions[i];
        EXPECT_EQ(int(actionTable()[i].id), int(i)) << expected.text;
        const QAction* action = frame.action(ActionId(i));
        EXPECT_EQ(action->text(), expected.text);
        EXPECT_EQ(action->shortcut().toString(), expected.shortcut) << expected.text;
        EXPECT_EQ(!action->icon().pixmap(24).isNull(), expected.hasIcon) << expected.text;
        EXPECT_EQ(action->parent(), &frame) << expected.text;
    }
}

TEST_F(MainFrameTest, ActionsReachTheCommandManager)
{
    for (std::size_t i = 0; i < std::size(Actions); ++i) {
        QAction* action = makeFrame().action(ActionId(i));
        action->setEnabled(true);
        action->trigger();
        EXPECT_EQ(m_manager.takeCalls(), Actions[i].call ? QStringList(Actions[i].call) : QStringList())
            << Actions[i].text;
    }
}

TEST_F(MainFrameTest, OnlyFilterActionsAreCheckable)
{
    const SoNodescopeMainFrame& frame = makeFrame();
    for (int i = 0; i < int(ActionId::Count); ++i) {
        const auto id = ActionId(i);
        const bool isFilter = id >= ActionId::ToggleFilters && id <= ActionId::FilterCustom;
        EXPECT_EQ(frame.action(id)->isCheckable(), isFilter) << frame.action(id)->text();
        EXPECT_EQ(frame.action(id)->isChecked(), isFilter && id != ActionId::FilterCustom) << frame.action(id)->text();
    }
}

TEST_F(MainFrameTest, ActionsThatNeedASelectionOrHistoryStartDisabled)
{
    using Id = ActionId;
    const SoNodescopeMainFrame& frame = makeFrame();
    const QList<Id> disabled{Id::Reload,
                             Id::Undo,
                             Id::Redo,
                             Id::Delete,
                             Id::SetIgnoredEnable,
                             Id::ShowAllReferences,
                             Id::HideAllReferences,
                             Id::NextReference,
                             Id::PreviousReference};
    for (int i = 0; i < int(Id::Count); ++i)
        EXPECT_EQ(frame.action(Id(i))->isEnabled(), !disabled.contains(Id(i))) << frame.action(Id(i))->text();
}

TEST_F(MainFrameTest, AttachedToAHostNoFileReplacesTheScene)
{
    const SoNodescopeMainFrame& frame = makeFrame(Hosting::Attached);
    EXPECT_FALSE(frame.action(ActionId::Open)->isEnabled());
    EXPECT_FALSE(frame.action(ActionId::Close)->isEnabled());
    EXPECT_TRUE(frame.action(ActionId::New)->isEnabled());
    EXPECT_TRUE(frame.action(ActionId::Save)->isEnabled());
    EXPECT_TRUE(frame.action(ActionId::SaveAs)->isEnabled());
}

TEST_F(MainFrameTest, WithoutSceneFilesTheFileActionsAreDisabled)
{
    SoNodescopeMainFrame& frame = makeFrame();
    frame.setSceneFiles(nullptr);
    for (ActionId id : {ActionId::New, ActionId::Open, ActionId::Close, ActionId::Save, ActionId::SaveAs})
        EXPECT_FALSE(frame.action(id)->isEnabled()) << frame.action(id)->text();
    frame.openFile("a.vx"); // goes nowhere
    EXPECT_EQ(m_files.takeCalls(), QStringList());
}

TEST_F(MainFrameTest, AnActionWhoseSlotIsMissingIsDisabled)
{
    QObject managerWithoutSlots;
    SoNodescopeMainFrame frame;
    frame.setUp(&managerWithoutSlots, Hosting::Standalone);
    for (const ActionRow& row : actionTable()) {
        if (row.managerSlot) {
            EXPECT_FALSE(frame.action(row.id)->isEnabled()) << row.text;
        }
    }
}

TEST_F(MainFrameTest, FiltersAreTheSumOfTheCheckedCategories)
{
    SoNodescopeMainFrame& frame = makeFrame();
    EXPECT_EQ(frame.categoryFilter(), 16383);
    frame.action(ActionId::FilterAppearance)->trigger();
    frame.action(ActionId::FilterTransform)->trigger();
    EXPECT_EQ(m_manager.takeCalls(), (QStringList{"setFilter 16382", "setFilter 8190"}));

    frame.action(ActionId::ToggleFilters)->trigger();
    frame.action(ActionId::ToggleFilters)->trigger();
    EXPECT_EQ(m_manager.takeCalls(), (QStringList{"setFilter 16383", "setFilter 8190"}));

    for (int bit = 1; bit < 13; ++bit)
        frame.action(actionAfter(ActionId::FilterAppearance, bit))->setChecked(false);
    EXPECT_EQ(frame.categoryFilter(), 0);
}
