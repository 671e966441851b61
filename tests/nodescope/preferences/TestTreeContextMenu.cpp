#include "TreeViewStateFixture.h"

#include <extension/NscExtension.h>
#include <nodescope/shell/NscShellImpl.h>

#include <vexel/nodes/SoCube.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class ContextMenuTest : public TreeStateTest {
protected:
    ContextMenuTest()
    {
        QObject::connect(m_view, &SoNodescopeTreeView::contextMenuRequested, m_state, &SoTreeViewState::contextMenu);
        m_view->expandAll();
        m_state->activate();
        m_frame.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_frame));
    }

    /** Opens the menu of a row with the mouse, and gives it to @p use before it is closed. */
    bool openMenu(SoTreeViewItem* row, const std::function<void(QMenu&)>& use)
    {
        m_view->scrollToItem(row);
        return openMenu(m_view->visualItemRect(row).center(), use);
    }
    bool openMenu(const QPoint& place, const std::function<void(QMenu&)>& use)
    {
        bool isOpen = false;
        QTimer::singleShot(0, m_view, [&] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                isOpen = true;
                use(*menu);
                menu->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, m_view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(m_view->viewport(), &event);
        QCoreApplication::processEvents(); // no menu was opened: the timer is still to come
        return isOpen;
    }
    /** The texts of the menu of a row; those of disabled entries in brackets. */
    std::string textsOf(SoTreeViewItem* row)
    {
        QStringList texts;
        openMenu(row, [&texts](QMenu& menu) {
            for (const QAction* action : menu.actions())
                texts << (action->isSeparator() ? "|"
                          : action->isEnabled() ? action->text()
                                                : '(' + action->text() + ')');
        });
        return texts.join(" ").toStdString();
    }
    static QAction* entry(QMenu& menu, const QString& text)
    {
        for (QAction* action : menu.actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
};

constexpr char Row_entries[] = "Expand All Add to Node Overview Add Node &Save scene graph &Delete | Cu&t &Copy "
                               "Insert &clipboard";

/** Offers a menu for nodes. */
class MenuExtension : public NscExtension {
public:
    MenuExtension() : NscExtension({"Menu"}) { m_menu.addAction("Count"); }

    void activate() override {}
    void show() override {}
    void hide() override {}
    QMenu* getNodeMenu() override { return &m_menu; }

    QMenu m_menu{"Faces"};
};

} // namespace

TEST_F(ContextMenuTest, HasTheEntriesInTheirOrder)
{
    EXPECT_EQ(textsOf(row(2)), std::string(Row_entries) + " | &Set Ignored/Enable |");
    EXPECT_EQ(textsOf(top()), std::string(Row_entries) + " |") << "the root accepts no ignoring";
    EXPECT_EQ(textsOf(row(5)->childRow(0)), std::string(Row_entries) + " |");
    EXPECT_EQ(textsOf(row(3)), std::string(Row_entries) + " | (&Set Ignored/Enable) |");
}

TEST_F(ContextMenuTest, HasReferencesForASharedNode)
{
    EXPECT_EQ(textsOf(row(0)),
              std::string(Row_entries) + " | &Set Ignored/Enable | (Show &All References) &Hide All References |");
    m_view->removeAllReferences();
    EXPECT_EQ(textsOf(row(0)), std::string(Row_entries) + " | &Set Ignored/Enable | Show &All References |");
    EXPECT_EQ(textsOf(row(1)->childRow(0)), "&Set Ignored/Enable") << "a hidden reference";
}

TEST_F(ContextMenuTest, EntriesReachTheCommandManagerForTheRow)
{
    const std::pair<const char*, const char*> expected[] = {
        {"Expand All", "expandAll"},
        {"Add to Node Overview", "setNodeOverview"},
        {"Add Node", "treeAddNode"},
        {"&Save scene graph", "saveSubSceneGraph"},
        {"&Delete", "treeDeleteNode"},
        {"Cu&t", "cutNode"},
        {"&Copy", "copyNode"},
        {"Insert &clipboard", "pasteNode"},
        {"&Set Ignored/Enable", "ignoreEnable"},
        {"&Hide All References", "removeAllReferences"},
    };
    for (const auto& [text, call] : expected) {
        makeCurrent(top());
        EXPECT_TRUE(openMenu(row(0), [text = text](QMenu& menu) { entry(menu, text)->trigger(); })) << text;
        EXPECT_EQ(m_commands.takeCalls(), QStringList(call)) << text;
        EXPECT_EQ(m_view->currentRow(), row(0));
    }
}

TEST_F(ContextMenuTest, EntriesOfMissingSlotsAreDisabled)
{
    QObject managerWithoutSlots;
    QObject::disconnect(m_view, nullptr, m_state, nullptr);
    SoTreeViewState state(*m_view, m_frame, managerWithoutSlots);
    QObject::connect(m_view, &SoNodescopeTreeView::contextMenuRequested, &state, &SoTreeViewState::contextMenu);
    EXPECT_EQ(textsOf(top()), "(Expand All) (Add to Node Overview) (Add Node) (&Save scene graph) (&Delete) | (Cu&t) "
                              "(&Copy) Insert &clipboard |");
}

TEST_F(ContextMenuTest, IsNotShownOnEmptySpaceOrADisabledRow)
{
    EXPECT_FALSE(openMenu(m_view->viewport()->rect().bottomRight() - QPoint(2, 2), [](QMenu&) {}));
    row(2)->setDisabled(true);
    EXPECT_FALSE(openMenu(row(2), [](QMenu&) {}));
}

TEST_F(ContextMenuTest, IsThereWhileAnotherPanelHasTheSharedActions)
{
    m_state->deactivate();
    EXPECT_TRUE(openMenu(row(2), [](QMenu& menu) { entry(menu, "&Delete")->trigger(); }));
    EXPECT_EQ(m_commands.takeCalls(), QStringList("treeDeleteNode"));
}

TEST_F(ContextMenuTest, IsGoneAfterUse)
{
    const int before = m_frame.findChildren<QMenu*>().size();
    EXPECT_TRUE(openMenu(row(2), [](QMenu&) {}));
    EXPECT_EQ(m_frame.findChildren<QMenu*>().size(), before);
}

TEST_F(ContextMenuTest, ExtensionsOfferMenusForTheTypeOfTheNode)
{
    NscShellImpl& shell = *NscShellImpl::getInstance();
    MenuExtension extension;
    shell.registerExtension(SoCube::getClassTypeId(), true, &extension);
    QStringList submenu;
    for (int times = 0; times < 2; ++times) {
        openMenu(row(2), [&submenu](QMenu& menu) {
            if (const QAction* last = menu.actions().last(); last->menu())
                submenu << last->text() + ": " + last->menu()->actions().value(0)->text();
        });
    }
    EXPECT_EQ(submenu.join(", ").toStdString(), "Faces: Count, Faces: Count");
    EXPECT_EQ(textsOf(row(1)), std::string(Row_entries) + " | &Set Ignored/Enable |") << "another type";
    shell.unregisterExtension(&extension);
    EXPECT_EQ(textsOf(row(2)), std::string(Row_entries) + " | &Set Ignored/Enable |");
    NscShellImpl::deleteInstance();
}
