#include "OverviewFixture.h"

#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSphere.h>

#include <QHeaderView>
#include <QSignalSpy>

namespace {

class TabsTest : public OverviewTest {
protected:
    void SetUp() override
    {
        OverviewTest::SetUp();
        sphere->ref();
    }
    void TearDown() override
    {
        OverviewTest::TearDown();
        sphere->unref();
    }
    int stored(int index) const
    {
        return SoPreferenceStore::getInstance()->readColumnWidth(SoPreferenceStore::NodeOverviewGroup, index);
    }
    /** Drags the right edge of a column until it has a width. */
    void drag(int column, int width)
    {
        QHeaderView* header = page().list().header();
        const int left = header->sectionViewportPosition(column);
        const int edge = left + header->sectionSize(column) - 1;
        QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edge, 5));
        QMouseEvent move(QEvent::MouseMove, QPoint(left + width - 1, 5), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(header->viewport(), &move);
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(left + width - 1, 5));
    }

    SoSphere* sphere = new SoSphere;
};

} // namespace

TEST_F(TabsTest, StartWithOneEmptyPage)
{
    EXPECT_EQ(overview->objectName(), "SoTabNodeOverview");
    EXPECT_EQ(overview->count(), 1);
    EXPECT_EQ(overview->tabText(0), "");
    EXPECT_TRUE(overview->tabsClosable());
}

TEST_F(TabsTest, TheLastPageCannotBeClosed)
{
    overview->closeNodeOverview(0);
    overview->closeNodeOverview(-1);
    overview->closeNodeOverview();
    overview->tabClose(0);
    emit overview->tabBar()->tabCloseRequested(0);
    EXPECT_EQ(overview->count(), 1);
}

TEST_F(TabsTest, PagesAreNamedAfterTheTypeThatTheyShow)
{
    overview->setNodeOverview(cube, nullptr);
    overview->addPage();
    EXPECT_EQ(overview->currentIndex(), 1);
    EXPECT_EQ(overview->tabText(1), "");
    overview->setNodeOverview(sphere, nullptr);
    EXPECT_EQ(overview->tabText(0), "Cube");
    EXPECT_EQ(overview->tabText(1), "Sphere");
    EXPECT_FALSE(overview->tabIcon(1).isNull());
}

TEST_F(TabsTest, MinusOneClosesTheCurrentPageAndOthersTheirs)
{
    overview->setNodeOverview(cube, nullptr);
    overview->addPage();
    overview->setNodeOverview(sphere, nullptr);
    overview->addPage();
    overview->closeNodeOverview(-1);
    ASSERT_EQ(overview->count(), 2);
    EXPECT_EQ(page().container(), sphere);
    overview->closeNodeOverview(7); // which there is not
    overview->closeNodeOverview(0);
    ASSERT_EQ(overview->count(), 1);
    EXPECT_EQ(page().container(), sphere);
}

TEST_F(TabsTest, ResetLeavesOneEmptyPage)
{
    overview->setNodeOverview(cube, nullptr);
    overview->addPage();
    overview->setNodeOverview(sphere, nullptr);
    QSignalSpy cleared(overview.get(), &SoTabNodeOverview::clearFieldEditorEvent);
    overview->reset();
    EXPECT_EQ(overview->count(), 1);
    EXPECT_EQ(page().container(), nullptr);
    EXPECT_EQ(overview->tabText(0), "");
    EXPECT_EQ(cleared.count(), 1);
}

TEST_F(TabsTest, AContainerWithoutFieldsClearsTheFieldEditor)
{
    class Bare : public SoNode {};
    SoNode* bare = new Bare;
    bare->ref();
    QSignalSpy cleared(overview.get(), &SoTabNodeOverview::clearFieldEditorEvent);
    overview->setNodeOverview(bare, nullptr);
    EXPECT_EQ(cleared.count(), 1);
    overview->addPage();
    overview->setNodeOverview(cube, nullptr);
    EXPECT_EQ(cleared.count(), 1);
    overview->setCurrentIndex(0);
    EXPECT_EQ(cleared.count(), 2);
    overview->reset();
    bare->unref();
}

TEST_F(TabsTest, APageThatBecomesCurrentStartsWithItsFirstField)
{
    overview->setNodeOverview(cube, nullptr);
    page().list().setCurrentItem(page().list().row(2));
    overview->addPage();
    overview->setNodeOverview(sphere, nullptr);
    QList<QTreeWidgetItem*> chosen;
    QObject::connect(overview.get(), &SoTabNodeOverview::fieldRowChanged,
                     [&](QTreeWidgetItem* row) { chosen.append(row); });
    overview->setCurrentIndex(0);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0], page().list().row(0));
    EXPECT_EQ(page().list().currentRow(), page().list().row(0));
}

TEST_F(TabsTest, ADraggedWidthHoldsForAllPagesAndIsStored)
{
    overview->setNodeOverview(cube, nullptr);
    overview->addPage();
    overview->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(overview.get()));
    drag(SoFieldItem::IgnoredColumn, 57);
    EXPECT_EQ(overview->page(0)->list().columnWidth(1), 57);
    EXPECT_EQ(overview->page(1)->list().columnWidth(1), 57);
    EXPECT_EQ(stored(1), 57);
    drag(SoFieldItem::FieldTypeColumn, 90);
    EXPECT_EQ(overview->page(0)->list().columnWidth(5), 90);
    EXPECT_EQ(stored(5), -1);
    page().list().setColumnWidth(SoFieldItem::FieldNameColumn, 0);
    EXPECT_EQ(stored(6), 0);
    const SoTabNodeOverview next; // as after the next start
    EXPECT_EQ(next.page(0)->list().columnWidth(2), 57);
    EXPECT_EQ(next.page(0)->list().columnWidth(7), 0);
}

TEST_F(TabsTest, TheFirstWidthsShowFieldsOnly)
{
    const SoNodeOverviewList& list = page().list();
    EXPECT_EQ(list.columnWidth(SoFieldItem::IgnoredColumn), 20);
    EXPECT_EQ(list.columnWidth(SoFieldItem::ConnectedColumn), 20);
    EXPECT_EQ(list.columnWidth(SoFieldItem::NodeTypeColumn), 0);
    EXPECT_EQ(list.columnWidth(SoFieldItem::NodeNameColumn), 0);
    for (const int column : {SoFieldItem::FieldTypeColumn, SoFieldItem::FieldNameColumn, SoFieldItem::ValueColumn})
        EXPECT_GT(list.columnWidth(column), 0);
}

TEST_F(TabsTest, AllPagesTakeTheColoursOfTheStore)
{
    overview->addPage();
    DisplayElementMap elements;
    elements["Default Value"] = {QFont(), QColor(1, 2, 3), true};
    elements["Changed Value"] = {QFont(), QColor(4, 5, 6), true};
    SoPreferenceStore::getInstance()->saveElements(SoPreferenceStore::NodeOverviewGroup, elements);
    overview->setPreferences();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(overview->page(i)->list().highlighting(false).color, QColor(1, 2, 3));
        EXPECT_EQ(overview->page(i)->list().highlighting(true).color, QColor(4, 5, 6));
    }
}

TEST_F(TabsTest, ARenamedNodeHasItsNameOnAllPages)
{
    overview->setNodeOverview(cube, nullptr);
    overview->addPage();
    overview->setNodeOverview(cube, nullptr);
    cube->setName("crate");
    overview->updateName(cube);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(overview->page(i)->findChild<QLineEdit*>("m_nodeNameValue")->text(), "crate");
}
