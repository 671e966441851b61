#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/NscFindDialog.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/** A tree in the main frame, searched through the frame's actions, its find box and the find dialog. */
class FindingTest : public testing::Test {
protected:
    FindingTest()
    {
        SoDB::init();
        m_frame.setUp(&m_manager, SoNodescopeMainFrame::Hosting::Standalone);
        m_manager.initialize(&m_frame);
        m_frame.setCentralWidget(m_view);
        m_manager.setTreeView(m_view);
        const std::string scene = "Separator { Cube { } Group { Sphere { } DEF ball Sphere { } } Cube { } }";
        SoInput in;
        in.setBuffer(scene.data(), scene.size());
        m_root = SoDB::readAll(&in);
        m_root->ref();
        m_view->reset(m_root);
        m_frame.show();
        QApplication::setActiveWindow(&m_frame);
    }
    ~FindingTest() override
    {
        m_view->reset(nullptr);
        m_root->unref();
        SoPreferenceStore::deleteInstance();
    }

    QTreeWidgetItem* row(int place) { return m_view->topLevelItem(0)->child(place); }
    void trigger(ActionId id) { m_frame.action(id)->trigger(); }
    NscFindDialog& openDialog()
    {
        trigger(ActionId::Find);
        return *m_frame.findChild<NscFindDialog*>();
    }
    static void press(NscFindDialog& dialog, const char* button)
    {
        for (auto* each : dialog.findChildren<QPushButton*>()) {
            if (each->text() == button)
                QTest::mouseClick(each, Qt::LeftButton);
        }
    }

    SoCommandManager m_manager;
    SoNodescopeMainFrame m_frame;
    SoNodescopeTreeView* m_view = new SoNodescopeTreeView;
    SoSeparator* m_root = nullptr;
};

} // namespace

TEST_F(FindingTest, TheFindBoxOfTheToolBarSearches)
{
    QTest::keyClicks(m_frame.searchBox(), "sphere");
    QTest::keyClick(m_frame.searchBox(), Qt::Key_Return);
    EXPECT_EQ(m_view->currentItem(), row(1)->child(0));
    EXPECT_TRUE(row(1)->isExpanded());
    EXPECT_TRUE(m_view->viewport()->rect().contains(m_view->visualItemRect(row(1)->child(0)).center()));
    EXPECT_EQ(m_frame.findChild<NscFindDialog*>()->isVisible(), false);
}

TEST_F(FindingTest, NextAndPreviousGoTheirWayWhateverTheDialogSays)
{
    m_frame.searchBox()->setEditText("cube");
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(0));
    m_frame.findChild<NscFindDialog*>()->setFlags(NodeSearch::Backward);
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(2));
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(0));
    trigger(ActionId::FindPrevious);
    EXPECT_EQ(m_view->currentItem(), row(2)) << "from the first match round to the last";
    m_manager.find();
    EXPECT_EQ(m_view->currentItem(), row(0)) << "find goes backward, as the dialog says";
}

TEST_F(FindingTest, TheDialogSearchesWithItsOwnTextWhileItIsShown)
{
    m_frame.searchBox()->setEditText("cube");
    NscFindDialog& dialog = openDialog();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.parentWidget(), &m_frame);
    EXPECT_EQ(dialog.text(), "cube");
    EXPECT_FALSE(m_frame.searchBox()->isEnabled());
    dialog.setText("ball");
    dialog.setColumn(NodeSearch::ByName);
    press(dialog, "Find");
    EXPECT_EQ(m_view->currentItem(), row(1)->child(1));
    EXPECT_TRUE(dialog.isVisible()) << "so that the user can go on";
    press(dialog, "Cancel");
    EXPECT_EQ(m_frame.searchBox()->currentText(), "ball");
    m_view->setCurrentItem(row(0));
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(1)->child(1)) << "by name still, with the dialog closed";
}

TEST_F(FindingTest, ThereIsOneDialogAndItComesBackWithTheKeyboard)
{
    NscFindDialog& dialog = openDialog();
    QApplication::setActiveWindow(&m_frame);
    EXPECT_EQ(&openDialog(), &dialog);
    EXPECT_EQ(m_frame.findChildren<NscFindDialog*>().size(), 1);
    QTRY_VERIFY(dialog.isActiveWindow());
    EXPECT_TRUE(dialog.isAncestorOf(QApplication::focusWidget()));
}

TEST_F(FindingTest, WithoutAMatchNothingChanges)
{
    m_view->setCurrentItem(row(2));
    m_frame.searchBox()->setEditText("");
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(2));
    m_frame.searchBox()->setEditText("torus");
    trigger(ActionId::FindPrevious);
    EXPECT_EQ(m_view->currentItem(), row(2));
    m_manager.setTreeView(nullptr);
    trigger(ActionId::FindNext);
    EXPECT_EQ(m_view->currentItem(), row(2));
}
