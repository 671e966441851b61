#include "MainFrameFixture.h"

#include <nodescope/mainframe/RecentFilesMenu.h>

#include <QComboBox>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

namespace {

/** The texts of a menu or tool bar; "---" for a separator, "(title: ...)" for a submenu, "[]" for the search box. */
QStringList textsOf(const QWidget& widget)
{
    QStringList texts;
    for (const QAction* action : widget.actions()) {
        if (action->isSeparator())
            texts << "---";
        else if (qobject_cast<const RecentFilesMenu*>(action->menu()))
            texts << "(" + action->text() + ")";
        else if (action->menu())
            texts << "(" + action->text() + ": " + textsOf(*action->menu()).join(", ") + ")";
        else if (qobject_cast<const QWidgetAction*>(action))
            texts << "[]";
        else
            texts << action->text();
    }
    return texts;
}

const QString Filter_texts =
    "Toggle Filters, ---, Appearance, Callback, Camera, Group, Light, Manipulator, Nodekit, Property, "
    "Selection, Separator, Shape, Switch, Topology, Transform";

} // namespace

TEST_F(MainFrameTest, MenusStandInOrder)
{
    const QStringList menus = textsOf(*makeFrame().menuBar());
    ASSERT_EQ(menus.size(), 5);
    EXPECT_EQ(
        menus[0],
        "(File: &New, &Open..., ---, &Reload, ---, &Close, ---, &Save, Save &As..., ---, &Export, ---, &Print..., "
        "(Recent &Files), ---, &Quit)");
    EXPECT_EQ(menus[1], "(&Edit: &Undo, &Redo, ---, Cu&t, &Copy, &Paste, ---, &Delete, ---, &Preferences...)");
    EXPECT_EQ(menus[2], "(&View: )");
    EXPECT_EQ(menus[3], "(&TreeView: &Set Ignored/Enable, ---, Show &All References, &Hide All References, ---, Ne&xt, "
                        "&Preferences..., ---, &Find..., Find &Next, (Bookmarks: Toggle Bookmark, ---, Next Bookmark, "
                        "Previous Bookmark, "
                        "---, Clear All Bookmarks), (Filter: " +
                            Filter_texts + "))");
    EXPECT_EQ(menus[4], "(&?: &Contents, ---, &About Nodescope)");
}

TEST_F(MainFrameTest, ToolBarsStandInOrder)
{
    makeFrame();
    const QList<QToolBar*> bars = m_frame->findChildren<QToolBar*>();
    QStringList titles;
    for (const QToolBar* bar : bars)
        titles << bar->windowTitle();
    ASSERT_EQ(titles, (QStringList{"File Tool Bar", "Edit Tool Bar", "Search Tool Bar", "Bookmark Tool Bar",
                                   "Filter Tool Bar"}));
    EXPECT_EQ(textsOf(*bars[0]).join(", "),
              "&New, &Open..., ---, &Reload, ---, &Close, ---, &Save, Save &As..., ---, &Print..., &Export");
    EXPECT_EQ(textsOf(*bars[1]).join(", "), "&Undo, &Redo, ---, Cu&t, &Copy, &Paste, ---, &Delete");
    EXPECT_EQ(textsOf(*bars[2]).join(", "), "&Find..., [], Find Pre&vious, Find &Next");
    EXPECT_EQ(textsOf(*bars[3]).join(", "),
              "Toggle Bookmark, ---, Previous Bookmark, Next Bookmark, ---, Clear All Bookmarks");
    EXPECT_EQ(textsOf(*bars[4]).join(", "), Filter_texts);
}

TEST_F(MainFrameTest, OthersFindTheViewMenuAndThePlaceBeforeHelp)
{
    SoNodescopeMainFrame& frame = makeFrame();
    EXPECT_EQ(frame.viewMenu()->title(), "&View");
    QMenu own("Own");
    frame.menuBar()->insertMenu(frame.helpMenuAction(), &own);
    QStringList titles;
    for (const QAction* action : frame.menuBar()->actions())
        titles << action->text();
    EXPECT_EQ(titles, (QStringList{"File", "&Edit", "&View", "&TreeView", "Own", "&?"}));
}

TEST_F(MainFrameTest, ActionsInNoMenuAreExploreAndItsKind)
{
    const SoNodescopeMainFrame& frame = makeFrame();
    QStringList unplaced;
    for (int i = 0; i < int(ActionId::Count); ++i) {
        if (frame.action(ActionId(i))->associatedWidgets().isEmpty())
            unplaced << frame.action(ActionId(i))->text();
    }
    EXPECT_EQ(unplaced, (QStringList{"Custom...", "&Explore", "Explore &all", "&Filter...", "&Insert...",
                                     "Insert &clipboard", "Pre&vious", "&Open Viewer"}));
}

TEST_F(MainFrameTest, SearchBoxTakesATextAndReturnFinds)
{
    QComboBox& box = *showFrame().searchBox();
    EXPECT_TRUE(box.isEditable());
    EXPECT_FALSE(box.duplicatesEnabled());
    EXPECT_EQ(box.minimumWidth(), 150);
    QTest::keyClicks(&box, "Cube");
    EXPECT_EQ(m_manager.takeCalls(), QStringList());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.currentText(), "Cube");
    EXPECT_EQ(m_manager.takeCalls(), QStringList{"find"});
}

TEST_F(MainFrameTest, AMenuEntryIsClicked)
{
    QMenuBar& bar = *showFrame().menuBar();
    QAction* file = bar.actions().first();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(file).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(file->menu()));
    QTest::mouseClick(file->menu(), Qt::LeftButton, {},
                      file->menu()->actionGeometry(m_frame->action(ActionId::SaveAs)).center());
    EXPECT_EQ(m_manager.takeCalls(), QStringList{"saveAsFile"});
}

TEST_F(MainFrameTest, AToolButtonIsClicked)
{
    showFrame();
    const auto click = [this](int bar, ActionId id) {
        QWidget* button = m_frame->findChildren<QToolBar*>()[bar]->widgetForAction(m_frame->action(id));
        ASSERT_TRUE(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
    };
    click(0, ActionId::Save);
    click(4, ActionId::FilterShape);
    EXPECT_EQ(m_manager.takeCalls(), (QStringList{"saveFile", "setFilter 15359"}));
    EXPECT_FALSE(m_frame->action(ActionId::FilterShape)->isChecked());
}
