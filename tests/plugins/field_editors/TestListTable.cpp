#include "EditorFixture.h"

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoIndexedFaceSet.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

namespace {

/** Four indices of faces, shown in the panel. */
class ListTableTest : public EditorTest {
protected:
    ListTableTest()
    {
        m_root->addChild(m_faces);
        m_faces->coordIndex.setValues(std::vector<std::int32_t>{10, 20, 30, -1});
        addEditor("MFInt32");
        select(m_faces->coordIndex);
        m_table = seen<QTableView>();
        m_table->setFocus();
    }

    QString cell(int row, int column = 0) const { return m_table->model()->index(row, column).data().toString(); }
    void setCurrent(int row) { m_table->setCurrentIndex(m_table->model()->index(row, 0)); }
    /** Types into the current cell; the first key opens it. */
    QLineEdit* type(const QString& text)
    {
        QTest::keyClicks(m_table, text.left(1));
        auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QTest::keyClicks(edit, text.mid(1));
        return edit;
    }
    QString values() const { return m_faces->coordIndex.get().toQString().simplified(); }
    QString problem()
    {
        for (QLabel* label : dock().findChildren<QLabel*>()) {
            if (label->isVisible() && QByteArray(label->metaObject()->className()) == "ProblemLine")
                return label->text();
        }
        return QString();
    }

    SoIndexedFaceSet* m_faces = new SoIndexedFaceSet;
    QTableView* m_table;
};

TEST_F(ListTableTest, showsTheValuesAndFollowsThem)
{
    EXPECT_EQ(4, m_table->model()->rowCount());
    EXPECT_EQ(QString("30"), cell(2));
    m_faces->coordIndex.setValues(std::vector<std::int32_t>{1, 2, 3, 4, 5});
    QTRY_COMPARE(m_table->model()->rowCount(), 5);
    EXPECT_EQ(QString("3"), cell(2));
    m_faces->coordIndex.setNum(1);
    EXPECT_EQ(QString(), cell(3)); // the table is a turn behind
    QTRY_COMPARE(m_table->model()->rowCount(), 1);
}

TEST_F(ListTableTest, keepsTheCurrentRowWhenTheHostChangesTheList)
{
    setCurrent(2);
    m_faces->coordIndex.insertSpace(4, 3);
    QTRY_COMPARE(m_table->model()->rowCount(), 7);
    EXPECT_EQ(2, m_table->currentIndex().row());
}

TEST_F(ListTableTest, aCellIsTypedAndUndone)
{
    setCurrent(1);
    QTest::keyClick(type("77"), Qt::Key_Return);
    QTRY_COMPARE(values(), QString("[ 10, 77, 30, -1 ]"));
    undo();
    EXPECT_EQ(QString("[ 10, 20, 30, -1 ]"), values());
}

TEST_F(ListTableTest, aCellThatIsNoValueIsMarkedAndNotApplied)
{
    setCurrent(1);
    QLineEdit* const edit = type("7.5");
    EXPECT_EQ(QString("\"7.5\" is not a whole number."), edit->toolTip());
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(problem(), QString("\"7.5\" is not a whole number."));
    EXPECT_EQ(QString("[ 10, 20, 30, -1 ]"), values());
}

TEST_F(ListTableTest, keysInsertAndRemoveValuesAndNoNodes)
{
    const int children = m_root->getNumChildren();
    setCurrent(1);
    QTest::keyClick(m_table, Qt::Key_Insert);
    EXPECT_EQ(QString("[ 10, 20, 20, 30, -1 ]"), values());
    setCurrent(0);
    QTest::keyClick(m_table, Qt::Key_Delete);
    EXPECT_EQ(QString("[ 20, 20, 30, -1 ]"), values());
    EXPECT_EQ(children, m_root->getNumChildren());
}

TEST_F(ListTableTest, cellsGoThroughTheClipboard)
{
    m_table->selectAll();
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QString("10\n20\n30\n-1\n"), QGuiApplication::clipboard()->text());
    QGuiApplication::clipboard()->setText("5\n6");
    m_table->clearSelection();
    setCurrent(2);
    QTest::keyClick(m_table, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QString("[ 10, 20, 5, 6 ]"), values());
    QGuiApplication::clipboard()->setText("x");
    QTest::keyClick(m_table, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QString("[ 10, 20, 5, 6 ]"), values());
    EXPECT_EQ(QString("Line 1, column 1: \"x\" is not a number."), problem());
}

TEST_F(ListTableTest, theSelectionIsFilled)
{
    m_table->selectAll();
    QTest::keyClick(m_table, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(QString("[ 10, 10, 10, 10 ]"), values());
}

TEST_F(ListTableTest, aConnectedListIsReadOnly)
{
    auto* source = new SoIndexedFaceSet;
    m_root->addChild(source);
    source->coordIndex.setValue(3);
    m_faces->coordIndex.connectFrom(&source->coordIndex);
    select(m_faces->coordIndex);
    for (const char* name : {"rowinsert", "rowremove", "fill", "paste"})
        EXPECT_FALSE(dock().findChild<QAction*>(name)->isEnabled()) << name;
    setCurrent(0);
    QTest::keyClick(m_table, Qt::Key_Delete);
    EXPECT_EQ(1, m_faces->coordIndex.getNum());
}

TEST_F(ListTableTest, tenMillionValuesAreShownAndEdited)
{
    auto* const points = new SoCoordinate3;
    m_root->addChild(points);
    points->point.setNum(10'000'000);
    addEditor("MFVec3f");
    select(points->point);
    m_table = seen<QTableView>();
    EXPECT_EQ(10'000'000, m_table->model()->rowCount());
    const QModelIndex last = m_table->model()->index(9'999'999, 2);
    m_table->scrollToBottom();
    m_table->setCurrentIndex(last);
    QTest::keyClick(type("4"), Qt::Key_Return);
    QTRY_COMPARE(points->point[9'999'999][2], 4.0f);
    undo();
    EXPECT_EQ(SbVec3f(0, 0, 0), points->point[9'999'999]);
}

} // namespace
