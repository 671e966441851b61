#include "EditorFixture.h"

#include <plugins/field_editors/edit/FieldBinding.h>
#include <plugins/field_editors/lists/FileTextColumns.h>
#include <plugins/field_editors/lists/ListEdits.h>
#include <plugins/field_editors/lists/TypedColumns.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoText2.h>

namespace {

/** Edits of a list of three points. */
class ListEditsTest : public EditorTest {
protected:
    ListEditsTest()
    {
        m_root->addChild(m_points);
        const SbVec3f points[] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
        m_points->point.setValues(points, 3);
        m_binding.setField(&m_points->point);
    }

    QString rows() const
    {
        QStringList rows;
        for (int i = 0; i < m_points->point.getNum(); ++i)
            rows += m_points->point.get1(i).toQString();
        return rows.join(", ");
    }

    SoCoordinate3* m_points = new SoCoordinate3;
    FieldBinding m_binding;
    NumberColumns<SoMFVec3f, SoSFVec3f> m_columns;
    ListEdits m_edits{m_binding, m_columns};
};

TEST_F(ListEditsTest, rowsAreInsertedAsCopies)
{
    m_edits.insertRows(1, 2);
    EXPECT_EQ(QString("1 2 3, 4 5 6, 4 5 6, 4 5 6, 7 8 9"), rows());
    undo();
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9"), rows());
}

TEST_F(ListEditsTest, rowsAreInsertedIntoAnEmptyList)
{
    m_points->point.setNum(0);
    m_edits.insertRows(0, 2);
    EXPECT_EQ(QString("0 0 0, 0 0 0"), rows());
}

TEST_F(ListEditsTest, rowsAreRemovedWhereverTheyStand)
{
    m_edits.setCount(6);
    m_edits.removeRows({{4, 5}, {0, 0}, {2, 2}});
    EXPECT_EQ(QString("4 5 6, 7 8 9"), rows());
    undo();
    EXPECT_EQ(6, m_points->point.getNum());
    redo();
    EXPECT_EQ(QString("4 5 6, 7 8 9"), rows());
    m_edits.removeRows({});
    EXPECT_EQ(2, m_points->point.getNum());
}

TEST_F(ListEditsTest, theListIsCutToACount)
{
    m_edits.setCount(1);
    EXPECT_EQ(QString("1 2 3"), rows());
    m_edits.setCount(0);
    EXPECT_EQ(QString(), rows());
    undo();
    undo();
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9"), rows());
}

TEST_F(ListEditsTest, cellsAreFilledFromTheTop)
{
    m_edits.fill({{0, 2}, 1, 2});
    EXPECT_EQ(QString("1 2 3, 4 2 3, 7 2 3"), rows());
    undo();
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9"), rows());
}

TEST_F(ListEditsTest, cellsAreCopiedAsASpreadsheetTakesThem)
{
    EXPECT_EQ(QString("5\t6\n8\t9\n"), m_edits.copy({{1, 2}, 1, 2}));
}

TEST_F(ListEditsTest, columnsOfASpreadsheetArePasted)
{
    EXPECT_EQ(QString(), m_edits.paste(1, 1, "0.5\t-1\r\n1e2\t0\r\n7\t7\r\n"));
    EXPECT_EQ(QString("1 2 3, 4 0.5 -1, 7 100 0, 0 7 7"), rows());
    undo();
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9"), rows());
}

TEST_F(ListEditsTest, aPasteBehindTheEndAppends)
{
    EXPECT_EQ(QString(), m_edits.paste(3, 0, "1\t1\t1"));
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9, 1 1 1"), rows());
}

struct BadTable {
    const char* name;
    const char* table;
    const char* problem;
};

class BadPaste : public ListEditsTest, public testing::WithParamInterface<BadTable> {};

TEST_P(BadPaste, changesNothingAndSaysWhere)
{
    EXPECT_EQ(QString(GetParam().problem), m_edits.paste(0, 1, GetParam().table));
    EXPECT_EQ(QString("1 2 3, 4 5 6, 7 8 9"), rows());
}

INSTANTIATE_TEST_SUITE_P(Tables, BadPaste,
                         testing::Values(BadTable{"word", "1\t2\n3\tx\n", "Line 2, column 2: \"x\" is not a number."},
                                         BadTable{"gap", "1\t2\n\n3\t4", "Line 2, column 1: A number is missing."},
                                         BadTable{"wide", "1\t2\t3",
                                                  "Line 1 has 3 columns, but there are only 2 from here on."}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(ListEditsTest, textsKeepTheirTabs)
{
    auto* const text = new SoText2;
    m_root->addChild(text);
    m_binding.setField(&text->string);
    const StringColumns<SoMFString, SoSFString> columns;
    ListEdits edits(m_binding, columns);
    EXPECT_EQ(QString(), edits.paste(0, 0, "one\ttwo\nthree \"four\"\n"));
    ASSERT_EQ(2, text->string.getNum());
    EXPECT_EQ(SbString("one\ttwo"), text->string[0]);
    EXPECT_EQ(SbString("three \"four\""), text->string[1]);
}

TEST_F(ListEditsTest, otherListsAreEditedAsFileText)
{
    const FileTextColumns columns;
    ListEdits edits(m_binding, columns);
    EXPECT_EQ(QString(), edits.paste(0, 0, "9 9 9"));
    EXPECT_EQ(QString("Line 1, column 1: \"9 9\" is no value of type MFVec3f."), edits.paste(1, 0, "9 9"));
    EXPECT_EQ(QString("9 9 9, 4 5 6, 7 8 9"), rows());
}

} // namespace
