#include "FieldListFixture.h"

#include <nodescope/panels/SoHeaderView.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>

#include <QAction>
#include <QMenu>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

using Column = SoFieldItem::Column;

class FieldListWidgetTest : public FieldListTest {
protected:
    void SetUp() override
    {
        FieldListTest::SetUp();
        cube->ref();
        cube->setName("box");
    }
    void TearDown() override
    {
        FieldListTest::TearDown();
        if (cube)
            cube->unref();
    }
    void deleteCube()
    {
        cube->unref();
        cube = nullptr;
    }
    void toggle(const char* name)
    {
        QAction action(name);
        list->toggleHeaderColumnVisibility(&action);
    }
    void showWindow()
    {
        list->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list.get()));
    }

    SoCube* cube = new SoCube;
};

/** Counts how often the viewport is painted, and where. */
class PaintSpy : public QObject {
public:
    explicit PaintSpy(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion region;
};

} // namespace

TEST_F(FieldListWidgetTest, HasTheColumnsOfFields)
{
    ASSERT_EQ(list->columnCount(), 8);
    const char* const titles[] = {"", "", "", "Node Type", "Node Name", "Field Type", "Field Name", "Field Value"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(list->headerItem()->text(i), titles[i]);
    EXPECT_EQ(list->headerItem()->toolTip(Column::IgnoredColumn), "This field is ignored");
    EXPECT_EQ(list->headerItem()->toolTip(Column::ConnectedColumn), "This field is connected");
    EXPECT_FALSE(list->headerItem()->icon(Column::IgnoredColumn).isNull());
    EXPECT_FALSE(list->headerItem()->icon(Column::ConnectedColumn).isNull());
    EXPECT_TRUE(list->isColumnHidden(Column::HiddenColumn));
    EXPECT_TRUE(list->isSortingEnabled());
    EXPECT_EQ(list->selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_FALSE(list->header()->sectionsMovable());
}

TEST_F(FieldListWidgetTest, ARowTellsWhoseFieldItIs)
{
    const SoFieldItem* row = add(*cube, "height");
    EXPECT_EQ(row->text(Column::NodeTypeColumn), "Cube");
    EXPECT_EQ(row->text(Column::NodeNameColumn), "box");
    EXPECT_EQ(row->text(Column::FieldTypeColumn), "SFFloat");
    EXPECT_EQ(row->text(Column::FieldNameColumn), "height");
    EXPECT_EQ(value(row), "2");
}

TEST_F(FieldListWidgetTest, ACopyFollowsTheFieldByItself)
{
    SoNodescopeList other;
    auto* copy = new SoFieldItem(*add(*cube, "height", true));
    other.addTopLevelItem(copy);
    list->clear();
    cube->height = 7;
    EXPECT_EQ(value(copy), "7");
    EXPECT_EQ(copy->text(Column::FieldNameColumn), "height");
    EXPECT_EQ(&copy->field(), &cube->height);
    EXPECT_TRUE(copy->isPart());
    EXPECT_EQ(other.findRow(&cube->height), copy);
}

TEST_F(FieldListWidgetTest, TheComparisonObjectLivesAsLongAsARowUsesIt)
{
    auto* comparison = new SoCube;
    const int index = cube->getFieldData().getIndex("height");
    auto* row = new SoFieldItem(*cube, index, comparison, false);
    list->addTopLevelItem(row);
    auto* copy = new SoFieldItem(*row);
    list->removeRow(row);
    list->addTopLevelItem(copy);
    EXPECT_EQ(copy->defaultField(), &comparison->height);
    EXPECT_EQ(comparison->getRefCount(), 1);
    cube->height = 9;
    EXPECT_TRUE(copy->toolTip(Column::ValueColumn).contains("Default: 2"));
}

TEST_F(FieldListWidgetTest, ColumnsAreHiddenAndShownByTheirName)
{
    const std::pair<const char*, int> columns[] = {{"Ignore", 1},     {"Connected", 2},  {"Node Type", 3},
                                                   {"Node Name", 4},  {"Field Type", 5}, {"Field Name", 6},
                                                   {"Field Value", 7}};
    for (const auto& [name, column] : columns) {
        list->setColumnWidth(column, 33);
        QSignalSpy changes(list.get(), &SoNodescopeList::columnWidthChanged);
        toggle(name);
        EXPECT_EQ(list->columnWidth(column), 0) << name;
        toggle(name);
        const int text = list->header()->fontMetrics().horizontalAdvance(list->headerItem()->text(column));
        EXPECT_EQ(list->columnWidth(column), column == 1 ? 20 : text + 10) << name;
        EXPECT_EQ(changes.count(), 2) << name;
    }
}

TEST_F(FieldListWidgetTest, UnknownColumnsAndEqualWidthsChangeNothing)
{
    QSignalSpy changes(list.get(), &SoNodescopeList::columnWidthChanged);
    toggle("Node NetName"); // a column that there is not
    toggle("Something");
    list->setColumnWidth(3, list->columnWidth(3));
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(FieldListWidgetTest, ARightClickOnTheHeaderOffersTheColumns)
{
    list->setColumnWidth(Column::NodeNameColumn, 0);
    QStringList entries;
    QStringList checked;
    QTimer::singleShot(0, list.get(), [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (const QAction* action : menu->actions()) {
            entries << action->text();
            if (action->isChecked())
                checked << action->text();
        }
        menu->actions()[2]->trigger();
        menu->close();
    });
    QTest::mouseClick(list->header()->viewport(), Qt::RightButton);
    EXPECT_EQ(entries.join("|"), "Ignore|Connected|Node Type|Node Name|Field Type|Field Name|Field Value");
    EXPECT_EQ(checked.join("|"), "Ignore|Connected|Node Type|Field Type|Field Name|Field Value");
    EXPECT_EQ(list->columnWidth(Column::NodeTypeColumn), 0);
}

TEST_F(FieldListWidgetTest, DraggingAnEdgeTellsTheWidth)
{
    showWindow();
    QSignalSpy changes(list.get(), &SoNodescopeList::columnWidthChanged);
    QHeaderView* header = list->header();
    const int edge = header->sectionViewportPosition(4) - 1;
    const int before = header->sectionSize(3);
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edge, 5));
    QMouseEvent move(QEvent::MouseMove, QPoint(edge + 30, 5), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(header->viewport(), &move);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edge + 30, 5));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toInt(), 3);
    EXPECT_EQ(changes[0][1].toInt(), before + 30);
    list->resize(list->width() + 100, list->height()); // the last column fills the list
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(FieldListWidgetTest, BothFiltersMustAgreeToShowARow)
{
    SoFieldItem* part = add(*cube, "width", true);
    SoFieldItem* other = add(*cube, "depth");
    list->setShowPartRows(false);
    EXPECT_TRUE(part->isHidden());
    EXPECT_FALSE(other->isHidden());
    list->showChangedValues(true);
    EXPECT_TRUE(other->isHidden());
    list->setShowPartRows(true);
    EXPECT_TRUE(part->isHidden());
    list->setShowPartRows(false);
    list->showChangedValues(false);
    EXPECT_TRUE(part->isHidden());
    EXPECT_FALSE(other->isHidden());
    list->setShowPartRows(true);
    EXPECT_FALSE(part->isHidden());
}

TEST_F(FieldListWidgetTest, AFieldThatChangesComesIntoTheListOfChangedOnes)
{
    showWindow();
    SoFieldItem* row = add(*cube, "width");
    list->showChangedValues(true);
    EXPECT_TRUE(row->isHidden());
    cube->width = 3;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !row->isHidden(); }));
}

TEST_F(FieldListWidgetTest, TheFirstRowThatCanBeChosenIsFound)
{
    EXPECT_EQ(list->firstEnabledRow(), nullptr);
    add(*cube, "width")->setDisabled(true);
    SoFieldItem* second = add(*cube, "height");
    EXPECT_EQ(list->firstEnabledRow(), second);
}

TEST_F(FieldListWidgetTest, AChangeRepaintsOneRow)
{
    SoFieldItem* first = add(*cube, "width");
    SoFieldItem* second = add(*cube, "height");
    showWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !second->needsRefresh(); }));
    PaintSpy painted(list->viewport());
    cube->height = 5;
    EXPECT_TRUE(second->needsRefresh());
    EXPECT_FALSE(first->needsRefresh());
    const QRect place = list->visualItemRect(second);
    ASSERT_TRUE(QTest::qWaitFor([&] { return painted.region.intersects(place); }));
    EXPECT_EQ(painted.region.boundingRect().height(), place.height());
    EXPECT_EQ(value(second), "5");
}

TEST_F(FieldListWidgetTest, ARowThatIsNotSeenWaits)
{
    SoFieldItem* row = add(*cube, "height");
    cube->height = 6;
    QCoreApplication::processEvents();
    EXPECT_TRUE(row->needsRefresh());
    EXPECT_EQ(value(row), "6"); // whoever asks gets the truth
    showWindow();
    EXPECT_FALSE(row->needsRefresh());
}

TEST_F(FieldListWidgetTest, ChangedAndDefaultValuesHaveTheirOwnLook)
{
    const SoFieldItem* row = add(*cube, "height");
    QFont bold;
    bold.setBold(true);
    list->setHighlighting({QFont(), Qt::darkGreen, true}, {bold, Qt::blue, true});
    EXPECT_EQ(row->data(Column::ValueColumn, Qt::ForegroundRole).value<QColor>(), QColor(Qt::darkGreen));
    cube->height = 6;
    EXPECT_EQ(row->data(Column::ValueColumn, Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
    EXPECT_TRUE(row->data(Column::ValueColumn, Qt::FontRole).value<QFont>().bold());
}

TEST_F(FieldListWidgetTest, RowsOfANodeGoWithIt)
{
    showWindow();
    auto* material = new SoMaterial;
    material->ref();
    SoFieldItem* kept = add(*material, "shininess");
    for (const char* field : {"width", "height", "depth"})
        add(*cube, field);
    list->setCurrentItem(list->row(2));
    cube->height = 5; // a refresh is due
    QSignalSpy gone(list.get(), &SoNodescopeList::containerGone);
    deleteCube();
    ASSERT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->row(0), kept);
    EXPECT_EQ(list->currentRow(), nullptr);
    EXPECT_EQ(gone.count(), 1);
    material->shininess = 0.5f;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !kept->needsRefresh(); }));
    list->clear();
    material->unref();
}

TEST_F(FieldListWidgetTest, RowsAreSortedByTheClickedColumn)
{
    for (const char* field : {"width", "height", "depth"})
        add(*cube, field);
    const auto order = [&] {
        QStringList names;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            names << list->row(i)->text(Column::FieldNameColumn);
        return names.join(' ');
    };
    QCoreApplication::processEvents();
    EXPECT_EQ(order(), "width height depth"); // as they are declared
    list->sortByColumn(Column::FieldNameColumn, Qt::AscendingOrder);
    EXPECT_EQ(order(), "depth height width");
    cube->depth.setIgnored(true);
    list->sortByColumn(Column::IgnoredColumn, Qt::AscendingOrder);
    EXPECT_EQ(order(), "height width depth");
}
