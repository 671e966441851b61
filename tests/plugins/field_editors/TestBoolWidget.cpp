#include "ShownWidget.h"

#include <plugins/field_editors/values/BoolWidget.h>
#include <vexel/fields/SoSFBool.h>

#include <QCheckBox>

namespace {

using Bool = ShownWidget<BoolWidget, SoSFBool>;

TEST(BoolWidgetTest, clicksAndTheSpaceBarSwitchIt)
{
    Bool shown;
    shown.showValue(false);
    auto* const box = shown.child<QCheckBox>();
    EXPECT_EQ("FALSE", box->text());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(1, shown.edits);
    EXPECT_TRUE(shown.last.getValue());
    EXPECT_EQ("TRUE", box->text());
    EXPECT_TRUE(box->isChecked());
    box->setFocus();
    shown.press(Qt::Key_Space);
    EXPECT_EQ(2, shown.edits);
    EXPECT_FALSE(shown.last.getValue());
    EXPECT_EQ("FALSE", box->text());
}

TEST(BoolWidgetTest, followsTheValueWithoutGivingItBack)
{
    Bool shown;
    shown.showValue(true);
    EXPECT_TRUE(shown.child<QCheckBox>()->isChecked());
    shown.showValue(false);
    EXPECT_FALSE(shown.child<QCheckBox>()->isChecked());
    EXPECT_EQ(0, shown.edits);
}

TEST(BoolWidgetTest, isDimmedWhenItCannotBeEdited)
{
    Bool shown;
    shown.showValue(true);
    shown.widget.setReadOnly(true);
    auto* const box = shown.child<QCheckBox>();
    EXPECT_FALSE(box->isEnabled());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(0, shown.edits);
    shown.widget.setReadOnly(false);
    EXPECT_TRUE(box->isEnabled());
}

} // namespace
