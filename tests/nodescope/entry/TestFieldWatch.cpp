#include "InspectionFixture.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoFieldWatch.h>
#include <nodescope/panels/SoNodeOverview.h>
#include <nodescope/panels/SoNodeOverviewList.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/preferences/SoNodescopeStateManager.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoIndexedFaceSet.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

namespace {

class FieldWatchTest : public InspectionTest {
protected:
    FieldWatchTest()
    {
        m_root->addChild(m_cube);
        m_root->addChild(m_other);
        _startNode(m_root, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    }

    static SoCommandManager& manager() { return *NscServicesImpl::getInstance()->getCommandManager(); }
    static SoNodescopeEdition& edition() { return *manager().getNodeEdition(); }
    static SoFieldWatch& watch() { return edition().fieldWatch(); }
    static SoNodeOverview& page() { return *edition().overview().currentPage(); }
    static SoNodescopeTreeView& tree() { return *SoNodescopeViewer::getInstance()->treeView(); }
    SoTreeViewItem* row(const SoNode* node) { return tree().rowRegistry().rows(node).first(); }
    /** Chooses a node in the tree and one of its fields in the overview, and presses the button that watches it. */
    void watchField(SoNode* node, SoField& field)
    {
        chooseField(node, field);
        page().findChild<QPushButton*>("m_watchButton")->click();
    }
    void chooseField(SoNode* node, SoField& field)
    {
        tree().setCurrentItem(row(node));
        page().list().setCurrentItem(page().list().findRow(&field));
    }
    static QString text(int entry, int column) { return watch().topLevelItem(entry)->text(column); }
    static QPoint placeOf(const QTreeWidgetItem* entry) { return watch().visualItemRect(entry).center(); }
    static QAction& deleteAction() { return *frame().action(ActionId::Delete); }
    static void giveKeyboardTo(QWidget& panel)
    {
        QApplication::setActiveWindow(&frame());
        panel.clearFocus();
        panel.setFocus();
    }

    SoCube* m_cube = new SoCube;
    SoCube* m_other = new SoCube;
};

TEST_F(FieldWatchTest, IsTheContentOfItsDock)
{
    EXPECT_EQ(watch().objectName(), "m_fieldWatch");
    EXPECT_EQ(frame().findChild<QDockWidget*>("dockFieldWatch")->widget(), &watch());
    EXPECT_EQ(watch().contextMenuPolicy(), Qt::CustomContextMenu);
    EXPECT_GT(watch().minimumHeight(), 0);
    EXPECT_EQ(SoFieldWatch().objectName(), "SoFieldWatch");
}

TEST_F(FieldWatchTest, AnEntryFollowsItsFieldAndStaysWhenTheUserGoesOn)
{
    watchField(m_cube, m_cube->width);
    ASSERT_EQ(watch().topLevelItemCount(), 1);
    EXPECT_EQ(text(0, SoFieldItem::NodeTypeColumn), "Cube");
    EXPECT_EQ(text(0, SoFieldItem::FieldNameColumn), "width");
    tree().setCurrentItem(row(m_root));
    m_cube->width = 12;
    EXPECT_EQ(text(0, SoFieldItem::ValueColumn), "12");
    EXPECT_EQ(watch().topLevelItemCount(), 1);
}

TEST_F(FieldWatchTest, AFieldIsWatchedOnce)
{
    watchField(m_cube, m_cube->width);
    watchField(m_cube, m_cube->width);
    EXPECT_EQ(watch().topLevelItemCount(), 1);
    watchField(m_other, m_other->width);
    EXPECT_EQ(watch().topLevelItemCount(), 2) << "the same field of another node";
    EXPECT_EQ(watch().addEntry(*watch().row(0)), nullptr);
}

TEST_F(FieldWatchTest, FieldsThatHoldNodesAreNotWatched)
{
    auto* faces = new SoIndexedFaceSet;
    m_root->addChild(faces);
    tree().setCurrentItem(row(faces));
    SoFieldItem* nodes = page().list().findRow(&faces->vertexProperty);
    ASSERT_TRUE(nodes);
    manager().setFieldWatch(nodes);
    EXPECT_EQ(watch().topLevelItemCount(), 0);
}

TEST_F(FieldWatchTest, TheCurrentFieldOfTheOverviewIsWatchedByDefault)
{
    manager().setFieldWatch();
    chooseField(m_cube, m_cube->depth);
    manager().setFieldWatch();
    ASSERT_GE(watch().topLevelItemCount(), 1);
    EXPECT_TRUE(watch().findRow(&m_cube->depth));
}

TEST_F(FieldWatchTest, ARowIsTakenWhereItIsDropped)
{
    chooseField(m_cube, m_cube->depth);
    SoFieldItem* const dragged = page().list().currentRow();
    manager().setFieldWatch(dragged, watch().mapToGlobal(QPoint(-3, 5)));
    EXPECT_EQ(watch().topLevelItemCount(), 0) << "beside the panel";

    QMimeData data;
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(watch().viewport(), &drop);
    EXPECT_EQ(watch().topLevelItemCount(), 0) << "something else";
    manager().setFieldWatch(dragged, watch().mapToGlobal(QPoint(5, 5)));
    EXPECT_EQ(watch().topLevelItemCount(), 1);
}

TEST_F(FieldWatchTest, ChoosingAnEntryChoosesItsNodeAndItsField)
{
    watchField(m_cube, m_cube->height);
    watchField(m_other, m_other->width);
    tree().setCurrentItem(row(m_root));
    QTest::mouseClick(watch().viewport(), Qt::LeftButton, {}, placeOf(watch().findRow(&m_cube->height)));
    const NscServicesImpl& services = *NscServicesImpl::getInstance();
    EXPECT_EQ(services.getSelectedField(), &m_cube->height);
    EXPECT_EQ(services.getSelectedNode(), m_cube);
    EXPECT_EQ(tree().currentRow(), row(m_cube));
    EXPECT_EQ(&page().list().currentRow()->field(), &m_cube->height);
}

TEST_F(FieldWatchTest, ADoubleClickShowsTheRowFromWhichTheEntryWasMade)
{
    auto* group = new SoSeparator;
    group->addChild(m_cube);
    m_root->addChild(group); // the cube stands in two places
    SoTreeViewItem* const second = tree().rowRegistry().rows(m_cube).last();
    tree().setCurrentItem(second);
    page().list().setCurrentItem(page().list().findRow(&m_cube->width));
    manager().setFieldWatch();
    tree().setCurrentItem(row(m_other));
    const int pages = edition().overview().count();
    QTest::mouseClick(watch().viewport(), Qt::LeftButton, {}, placeOf(watch().row(0)));
    QTest::mouseDClick(watch().viewport(), Qt::LeftButton, {}, placeOf(watch().row(0)));
    EXPECT_EQ(page().container(), m_cube);
    EXPECT_EQ(tree().currentRow(), second);
    EXPECT_EQ(edition().overview().count(), pages);

    m_root->removeChild(group); // and with it that row; the cube stays
    tree().setCurrentItem(row(m_other));
    giveKeyboardTo(watch());
    watch().setCurrentItem(watch().topLevelItem(0));
    QTest::keyClick(&watch(), Qt::Key_Return);
    EXPECT_EQ(page().container(), m_cube);
    EXPECT_EQ(tree().currentRow(), row(m_cube));
}

TEST_F(FieldWatchTest, TheDeleteKeyRemovesTheCurrentEntry)
{
    giveKeyboardTo(watch());
    QTest::keyClick(&watch(), Qt::Key_Delete);
    watchField(m_cube, m_cube->width);
    watchField(m_cube, m_cube->height);
    watch().setCurrentItem(nullptr);
    QTest::keyClick(&watch(), Qt::Key_Delete);
    EXPECT_EQ(watch().topLevelItemCount(), 2) << "no entry is current";
    watch().setCurrentItem(watch().topLevelItem(0));
    QTest::keyClick(&watch(), Qt::Key_Delete);
    EXPECT_EQ(watch().topLevelItemCount(), 1);
    EXPECT_EQ(m_root->getNumChildren(), 3) << "nodes stay";
}

TEST_F(FieldWatchTest, TheSharedDeleteGoesToThePanelWithTheKeyboard)
{
    giveKeyboardTo(watch());
    EXPECT_EQ(SoNodescopeStateManager::currentState(), "FieldWatchState");
    EXPECT_FALSE(deleteAction().isEnabled()) << "no entry is current";
    watchField(m_cube, m_cube->width);
    watch().setCurrentItem(watch().topLevelItem(0));
    ASSERT_TRUE(deleteAction().isEnabled());
    deleteAction().trigger();
    EXPECT_EQ(watch().topLevelItemCount(), 0);
    EXPECT_EQ(m_root->getNumChildren(), 3);
    EXPECT_FALSE(deleteAction().isEnabled());

    giveKeyboardTo(tree());
    tree().setCurrentItem(row(m_other));
    EXPECT_EQ(SoNodescopeStateManager::currentState(), "TreeViewState");
    deleteAction().trigger();
    EXPECT_EQ(m_root->getNumChildren(), 2);
}

TEST_F(FieldWatchTest, AClearedListDisablesDelete)
{
    watchField(m_cube, m_cube->width);
    giveKeyboardTo(watch());
    watch().setCurrentItem(watch().topLevelItem(0));
    EXPECT_TRUE(deleteAction().isEnabled());
    QSignalSpy cleared(&watch(), &SoFieldWatch::listCleared);
    edition().clear();
    EXPECT_EQ(cleared.count(), 1);
    EXPECT_FALSE(deleteAction().isEnabled());
}

TEST_F(FieldWatchTest, TheContextMenuRemovesTheEntryUnderThePointer)
{
    watchField(m_cube, m_cube->width);
    watchField(m_cube, m_cube->height);
    QStringList texts;
    const auto openMenu = [&texts](const QPoint& place) {
        QTimer::singleShot(0, &watch(), [&texts] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                for (QAction* action : menu->actions()) {
                    texts << action->text();
                    action->trigger();
                }
                menu->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, watch().viewport()->mapToGlobal(place));
        QApplication::sendEvent(watch().viewport(), &event);
        QCoreApplication::processEvents();
    };
    openMenu(QPoint(10, watch().viewport()->height() - 2));
    EXPECT_TRUE(texts.isEmpty()) << "beside the entries";
    openMenu(placeOf(watch().row(1)));
    EXPECT_EQ(texts.join(", "), "&Delete");
    EXPECT_EQ(watch().topLevelItemCount(), 1);
}

TEST_F(FieldWatchTest, TheNewNameOfOneNodeIsShownInEveryEntry)
{
    watchField(m_cube, m_cube->width);
    watchField(m_other, m_other->width);
    tree().setCurrentItem(row(m_other));
    auto* name = page().findChild<QLineEdit*>("m_nodeNameValue");
    name->selectAll();
    QTest::keyClicks(name, "lid");
    EXPECT_EQ(text(0, SoFieldItem::NodeNameColumn), "lid");
    EXPECT_EQ(text(1, SoFieldItem::NodeNameColumn), "lid");
}

TEST_F(FieldWatchTest, EntriesGoWithTheirNodes)
{
    watchField(m_cube, m_cube->width);
    watchField(m_cube, m_cube->height);
    watchField(m_other, m_other->width);
    watch().setCurrentItem(watch().topLevelItem(0));
    tree().setCurrentItem(row(m_other));
    m_root->removeChild(m_cube);
    ASSERT_EQ(watch().topLevelItemCount(), 1);
    EXPECT_EQ(&watch().row(0)->field(), &m_other->width);
    watchField(m_root, m_root->boundingBoxCaching);
    EXPECT_EQ(watch().topLevelItemCount(), 2);
}

TEST_F(FieldWatchTest, ANewSceneLeavesNoEntry)
{
    watchField(m_cube, m_cube->width);
    auto* scene = new SoSeparator;
    SoNodescopeViewer::getInstance()->setSceneGraph(scene, true);
    EXPECT_EQ(watch().topLevelItemCount(), 0);
    SoNodescopeViewer::getInstance()->setSceneGraph(m_root, true);
    watchField(m_cube, m_cube->width);
    EXPECT_EQ(watch().topLevelItemCount(), 1);
}

TEST_F(FieldWatchTest, IsWrittenAsThePreferencesSay)
{
    SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    DisplayElementMap elements = store.defaultElements(SoPreferenceStore::FieldWatchGroup);
    elements["Changed Value"].color = QColor(1, 2, 3);
    store.saveElements(SoPreferenceStore::FieldWatchGroup, elements);
    watch().setPreferences();
    m_cube->width = 4;
    watchField(m_cube, m_cube->width);
    watchField(m_cube, m_cube->height);
    const auto color = [](int entry) {
        return watch().topLevelItem(entry)->data(SoFieldItem::ValueColumn, Qt::ForegroundRole).value<QBrush>().color();
    };
    const int changed = &watch().row(0)->field() == &m_cube->width ? 0 : 1;
    EXPECT_EQ(color(changed), QColor(1, 2, 3));
    EXPECT_EQ(color(1 - changed), QColor(0, 0, 0));
    store.saveElements(SoPreferenceStore::FieldWatchGroup, store.defaultElements(SoPreferenceStore::FieldWatchGroup));
}

TEST_F(FieldWatchTest, RemembersTheWidthsOfColumns)
{
    watch().setColumnWidth(SoFieldItem::FieldNameColumn, 123);
    EXPECT_EQ(SoFieldWatch().columnWidth(SoFieldItem::FieldNameColumn), 123);
}

} // namespace
