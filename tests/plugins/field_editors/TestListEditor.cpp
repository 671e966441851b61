#include "EditorFixture.h"

#include <plugins/field_editors/values/DragLabel.h>
#include <plugins/field_editors/values/NumberBox.h>
#include <tests/plugins/field_editors/WidgetFixture.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoMaterial.h>

#include <QSlider>
#include <QTableView>

namespace {

class ListEditorTest : public EditorTest {
protected:
    ListEditorTest()
    {
        m_root->addChild(m_points);
        m_root->addChild(m_material);
        const SbVec3f points[] = {{1, 2, 3}, {4, 5, 6}};
        m_points->point.setValues(points, 2);
    }

    void setCurrent(int row)
    {
        auto* const table = seen<QTableView>();
        table->setCurrentIndex(table->model()->index(row, 0));
    }

    SoCoordinate3* m_points = new SoCoordinate3;
    SoMaterial* m_material = new SoMaterial;
};

TEST_F(ListEditorTest, theCurrentValueHasAWidgetOfItsOwn)
{
    addEditor("MFVec3f");
    select(m_points->point);
    EXPECT_FALSE(seen<NumberBox>());
    setCurrent(1);
    auto* const box = seen<NumberBox>();
    ASSERT_TRUE(box);
    EXPECT_EQ(4, box->value());
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "9\r");
    EXPECT_EQ(SbVec3f(9, 5, 6), m_points->point[1]);
    EXPECT_EQ(SbVec3f(1, 2, 3), m_points->point[0]);
    m_points->point.set1Value(1, SbVec3f(7, 8, 9));
    QTRY_COMPARE(box->value(), 7.0);
}

TEST_F(ListEditorTest, aDragOfTheCurrentValueIsOneStep)
{
    addEditor("MFVec3f");
    select(m_points->point);
    setCurrent(0);
    auto* const label = seen<DragLabel>();
    const QPoint start = label->rect().center();
    QTest::mousePress(label, Qt::LeftButton, {}, start);
    for (int pixels = 1; pixels <= 40; ++pixels)
        moveMouse(*label, start + QPoint(pixels, 0));
    QTest::mouseRelease(label, Qt::LeftButton, {}, start + QPoint(40, 0));
    EXPECT_EQ(SbVec3f(3, 2, 3), m_points->point[0]);
    undo();
    EXPECT_EQ(SbVec3f(1, 2, 3), m_points->point[0]);
    redo();
    EXPECT_EQ(SbVec3f(3, 2, 3), m_points->point[0]);
}

TEST_F(ListEditorTest, aKnownRangeHasASlider)
{
    addEditor("MFFloat");
    select(m_material->shininess);
    setCurrent(0);
    auto* const slider = seen<QSlider>();
    ASSERT_TRUE(slider);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(1, m_material->shininess[0]);
}

TEST_F(ListEditorTest, theWidgetGoesWithTheLastValue)
{
    addEditor("MFVec3f");
    select(m_points->point);
    setCurrent(1);
    m_points->point.setNum(0);
    QTRY_VERIFY(!seen<NumberBox>());
}

} // namespace
